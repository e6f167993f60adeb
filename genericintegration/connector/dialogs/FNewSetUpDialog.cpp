#include "genericintegration/connector/dialogs/FNewSetUpDialog.h"

#include "genericintegration/connector/dialogs/FCommandLine.h"
#include "genericintegration/connector/dialogs/FSampleList.h"
#include "host/core/FObjectName.h"
#include "host/core/FUserInterface.h"
#include "host/gui/base/FStateLabel.h"
#include "host/gui/fields/FObjectNameValidator.h"
#include "host/run/FProgramSearch.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

FNewSetUpDialog::FNewSetUpDialog(QWidget* parent)
    : QDialog(parent),
      mpProgram(new QLineEdit(this)),
      mpFound(new FStateLabel(FStateColor::State::Secondary, this)),
      mpInputs(new FSampleList(QStringLiteral("newInputs"), QStringLiteral("Input files"),
                               QStringLiteral("Drop input files that work here, or press +"), true, this)),
      mpOutputs(new FSampleList(QStringLiteral("newOutputs"), QStringLiteral("Output files"),
                                QStringLiteral("Drop outputs of such a run here, if you have them"), false, this)),
      mpName(new QLineEdit(this)) {
    setObjectName(QStringLiteral("newSetUpDialog"));
    setWindowTitle(QStringLiteral("New set-up"));
    setAttribute(Qt::WA_DeleteOnClose);
    mpName->setObjectName(QStringLiteral("newName"));
    mpName->setValidator(new FObjectNameValidator(mpName));
    mpFound->setObjectName(QStringLiteral("newProgramFound"));
    mpFound->setWordWrap(true);
    auto* program = new QVBoxLayout;
    program->addLayout(makeProgramRow());
    program->addWidget(mpFound);
    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(QStringLiteral("Program"), program);
    form->addRow(QStringLiteral("&Input files"), mpInputs);
    form->addRow(QStringLiteral("&Output files"), mpOutputs);
    form->addRow(QStringLiteral("&Name"), mpName);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    mpCreate = buttons->addButton(QStringLiteral("Create"), QDialogButtonBox::AcceptRole);
    mpCreate->setObjectName(QStringLiteral("newCreate"));
    mpCreate->setDefault(true);
    auto* column = new QVBoxLayout(this);
    column->addLayout(form, 1);
    column->addWidget(buttons);
    connect(mpInputs, &FSampleList::changed, this, [this] { mLookUp.request(); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    constexpr int width = 70;   // characters
    constexpr int height = 24;  // lines
    resize(width * fontMetrics().averageCharWidth(), height * fontMetrics().lineSpacing());
    lookUp();
    mpProgram->setFocus();
}

QLayout* FNewSetUpDialog::makeProgramRow() {
    mpProgram->setObjectName(QStringLiteral("newProgram"));
    mpProgram->setAccessibleName(QStringLiteral("Program"));
    mpProgram->setPlaceholderText(QStringLiteral("solver -i case"));
    mpProgram->setToolTip(
        QStringLiteral("The program with its arguments, as you type it in a terminal; texts with "
                       "blanks between quotes"));
    auto* select = new QPushButton(QStringLiteral("&Select…"), this);
    select->setObjectName(QStringLiteral("newSelectProgram"));
    setTabOrder(mpProgram, select);
    connect(select, &QPushButton::clicked, this, &FNewSetUpDialog::askProgram);
    connect(mpProgram, &QLineEdit::textChanged, this, &FNewSetUpDialog::lookUp);
    auto* row = new QHBoxLayout;
    row->addWidget(mpProgram, 1);
    row->addWidget(select);
    return row;
}

void FNewSetUpDialog::askProgram() {
    const QString path =
        FUserInterface::instance()->askOpenFile(QStringLiteral("Select the program"), QDir::homePath(), QString());
    if (!path.isEmpty()) {
        mpProgram->setText(FCommandLine::quoted(path));
    }
}

// The name is that of the program until the user enters another.
void FNewSetUpDialog::lookUp() {
    const FNewSetUp now = entered();
    const QString fault = FCommandLine::parse(mpProgram->text()).fault;
    mpCreate->setEnabled(!now.program.isEmpty() && fault.isEmpty());
    if (!mpName->isModified()) {
        mpName->setText(legalName(QFileInfo(now.program).completeBaseName()));
    }
    if (now.program.isEmpty()) {
        mpFound->setState(FStateColor::State::Secondary);
        mpFound->setText(QStringLiteral("A name is searched in the folders of PATH"));
        return;
    }
    const auto search = FProgramSearch::search(now.program, QDir::currentPath(), qEnvironmentVariable("PATH"));
    const QString problem = !fault.isEmpty() ? fault : search.isFound() ? missingInput(now) : whyNotFound(search);
    const QString reads = now.standardInput.isEmpty() ? QString() : QStringLiteral(", reads %1").arg(now.standardInput);
    mpFound->setState(problem.isEmpty() ? FStateColor::State::Good : FStateColor::State::Warning);
    mpFound->setText(problem.isEmpty() ? QStringLiteral("✓ %1%2").arg(search.file, reads)
                                       : QStringLiteral("⚠ %1").arg(problem));
}

// The advice of the search for a name with blanks is one for scripts.
QString FNewSetUpDialog::whyNotFound(const FProgramSearch& search) {
    return search.program.contains(QLatin1Char(' '))
               ? QStringLiteral(
                     "The program '%1' was not found. If its arguments are in that name, leave out the quotes.")
                     .arg(search.program)
               : search.fault(false).toSentences();
}

QString FNewSetUpDialog::missingInput(const FNewSetUp& setUp) {
    const bool isThere = std::any_of(setUp.inputs.begin(), setUp.inputs.end(), [&setUp](const FNewSetUp::Input& input) {
        return QFileInfo(input.path).fileName() == setUp.standardInput;
    });
    return setUp.standardInput.isEmpty() || isThere
               ? QString()
               : QStringLiteral("The program reads %1: add it to the input files.").arg(setUp.standardInput);
}

FNewSetUp FNewSetUpDialog::entered() const {
    FNewSetUp setUp;
    const FCommandLine command = FCommandLine::parse(mpProgram->text());
    setUp.standardInput = QFileInfo(command.standardInput).fileName();
    setUp.arguments = command.words;
    setUp.program = setUp.arguments.isEmpty() ? QString() : setUp.arguments.takeFirst();
    setUp.name = mpName->text();
    const QStringList inputs = mpInputs->paths();
    for (int row = 0; row < inputs.size(); ++row) {
        setUp.inputs.push_back({inputs[row], mpInputs->isChecked(row)});
    }
    setUp.outputs = mpOutputs->paths();
    return setUp;
}

void FNewSetUpDialog::accept() {
    const FNewSetUp setUp = entered();
    if (mpCreate->isEnabled()) {
        QDialog::accept();
        emit confirmed(setUp);
    }
}
