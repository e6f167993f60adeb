#include "host/gui/panels/FObjectEditorPanel.h"

#include "host/core/FChanges.h"
#include "host/core/FSelectionSet.h"
#include "host/core/FUserStep.h"
#include "host/design/FConnectorInterface.h"
#include "host/design/FEntry.h"
#include "host/gui/base/FClassLook.h"
#include "host/gui/base/FGuiSettings.h"
#include "host/gui/base/FPendingEdit.h"
#include "host/gui/base/FStateLabel.h"
#include "host/gui/fields/FAttributeEditor.h"
#include "host/gui/fields/FObjectNameValidator.h"
#include "host/gui/panels/FAttributeForm.h"
#include "host/gui/panels/FEntriesWgt.h"
#include "host/gui/panels/FEntryDefModel.h"
#include "host/gui/panels/FEntryDefsWgt.h"
#include "host/gui/panels/FEntryModel.h"
#include "host/lodm/FCustomComputation.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QStyle>
#include <QVBoxLayout>

namespace {

const char* const layoutName = "editorSplitter";
constexpr double usualFormShare = 0.45;

/** The object whose attributes stand for those of a selected one: for a connector its computation. */
FExpr<FObject> edited(const FExpr<FObject>& object) {
    const auto* connector = dynamic_cast<const FConnectorInterface*>(object.getObject());
    const FExpr<FExternComputation> computation = connector ? connector->getComputation() : nullptr;
    return computation ? FExpr<FObject>(computation) : object;
}

/** The configuration that an entry is in; null once it was taken out, or belongs to a definition. */
FConfiguration* configurationOf(const FEntry& entry) {
    auto* configuration = dynamic_cast<FConfiguration*>(entry.getRoot());
    return configuration && configuration->isInModel() ? configuration : nullptr;
}

FConfiguration* configurationOf(FObject* object) {
    if (const auto* computation = dynamic_cast<const FCustomComputation*>(object)) {
        return computation->getConfiguration().ptr();
    }
    if (const auto* entry = dynamic_cast<const FEntry*>(object)) {
        return configurationOf(*entry);
    }
    return dynamic_cast<FConfiguration*>(object);
}

/** Whose entries are edited: of several configurations, the first if all are of the same definition. */
FConfiguration* configurationOf(const QList<FExpr<FObject>>& objects) {
    if (objects.size() == 1) {
        return configurationOf(objects.first().getObject());
    }
    FConfiguration* first = nullptr;
    for (const FExpr<FObject>& object : objects) {
        auto* configuration = dynamic_cast<FConfiguration*>(object.getObject());
        if (!configuration || (first && configuration->getDefinition().ptr() != first->getDefinition().ptr())) {
            return nullptr;
        }
        first = first ? first : configuration;
    }
    return first;
}

bool isRemoved(const FExpr<FObject>& object) {
    const auto* entry = dynamic_cast<const FEntry*>(object.getStored());
    return entry && !configurationOf(*entry);
}

FManaged* asManaged(const FExpr<FObject>& handle) {
    return dynamic_cast<FManaged*>(handle.getObject());
}

}  // namespace

FObjectEditorPanel::FObjectEditorPanel(FNavigator& navigator)
    : mpPages(new QStackedWidget(this)),
      mpIcon(new QLabel(this)),
      mpName(new QLineEdit(this)),
      mpClass(new FStateLabel(FStateColor::State::Secondary, this)),
      mpSplitter(new QSplitter(Qt::Vertical, this)),
      mpScroll(new QScrollArea(mpSplitter)) {
    auto* hint = new FStateLabel(FStateColor::State::Secondary, mpPages);
    hint->setObjectName(QStringLiteral("editorHint"));
    hint->setText(QStringLiteral("Select an object to see its attributes"));
    hint->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    hint->setWordWrap(true);
    hint->setMargin(fontMetrics().height());
    mpScroll->setFrameShape(QFrame::NoFrame);
    mpScroll->setWidgetResizable(true);
    mpScroll->setFocusPolicy(Qt::NoFocus);
    mpScroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    mpForm = new FAttributeForm(mpScroll);
    mpScroll->setWidget(mpForm);
    mpEntries = new FEntriesWgt(navigator, mpSplitter);
    mpDefined = new FEntryDefsWgt(navigator, mpSplitter);
    mpSplitter->setObjectName(QString::fromLatin1(layoutName));
    mpSplitter->addWidget(mpScroll);
    mpSplitter->addWidget(mpEntries);
    mpSplitter->addWidget(mpDefined);
    mpSplitter->setChildrenCollapsible(false);
    mFormShare = FGuiSettings::getLayout(QString::fromLatin1(layoutName)).toDouble();
    mFormShare = mFormShare > 0 ? mFormShare : usualFormShare;
    mpSplitter->installEventFilter(this);
    mpForm->installEventFilter(this);
    mpScroll->viewport()->installEventFilter(this);
    connect(mpSplitter, &QSplitter::splitterMoved, this, [this](int position) {
        mFormShare = static_cast<double>(position) / mpSplitter->height();
        FGuiSettings::setLayout(QString::fromLatin1(layoutName), QByteArray::number(mFormShare));
    });
    auto* content = new QWidget(mpPages);
    auto* rows = new QVBoxLayout(content);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(makeHeader());
    rows->addWidget(mpSplitter, 1);
    mpPages->addWidget(hint);
    mpPages->addWidget(content);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(mpPages);

    mpForm->setRebuild([this] { mRebuild.request(); });
    const FChanges* changes = FChanges::instance();
    connect(changes, &FChanges::objectLeft, this, &FObjectEditorPanel::clearFor);
    connect(changes, &FChanges::objectRenamed, this, &FObjectEditorPanel::showName);
    const auto followSoon = [this] { mFollow.request(); };
    connect(changes, &FChanges::stepDone, this, followSoon);
    connect(changes, &FChanges::stepUndone, this, followSoon);
    connect(changes, &FChanges::stepRedone, this, followSoon);
    connect(FSelectionSet::instance(), &FSelectionSet::selectionReplaced, this, &FObjectEditorPanel::rebuild);
    rebuild();
}

QWidget* FObjectEditorPanel::makeHeader() {
    auto* header = new QWidget(this);
    mpHeader = new QBoxLayout(QBoxLayout::LeftToRight, header);
    const int margin = fontMetrics().height() / 3;
    mpHeader->setContentsMargins(margin, margin, margin, margin);
    auto* line = new QHBoxLayout;
    mpName->setObjectName(QStringLiteral("objectName"));
    mpName->setAccessibleName(QStringLiteral("Name"));
    mpName->setValidator(new FObjectNameValidator(mpName));
    mpClass->setObjectName(QStringLiteral("objectClass"));
    line->addWidget(mpIcon);
    line->addWidget(mpName, 1);
    mpHeader->addLayout(line, 1);
    mpHeader->addWidget(mpClass);
    connect(mpName, &QLineEdit::editingFinished, this, &FObjectEditorPanel::commitEdit);
    return header;
}

void FObjectEditorPanel::commitEdit() {
    FManaged* object = mShown.size() == 1 ? asManaged(mShown.first()) : nullptr;
    const QString wanted = mpName->text();
    const bool isEntered = mpName->isModified() && object && !wanted.isEmpty() && wanted != object->getName();
    mpName->setModified(false);
    if (isEntered) {
        const FUserStep step(QStringLiteral("rename"));
        object->setName(wanted);
    }
    showName();
}

void FObjectEditorPanel::showName() {
    if (!mpName->isModified() || !mpName->hasFocus()) {
        mpName->setText(mShown.size() == 1 ? mShown.first().toString()
                                           : QStringLiteral("%1 objects").arg(mShown.size()));
    }
    mpName->setReadOnly(mShown.size() != 1 || !asManaged(mShown.first()));
}

void FObjectEditorPanel::showHeader() {
    const FObject* first = FClassLook::describedBy(mShown.first().getObject());
    const QString word = FClassLook::wordFor(first);
    const bool isSameClass = std::all_of(mShown.begin(), mShown.end(), [&word](const FExpr<FObject>& object) {
        return FClassLook::wordFor(FClassLook::describedBy(object.getObject())) == word;
    });
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    mpIcon->setPixmap(FClassLook::iconOf(isSameClass ? first : FManaged::null()).pixmap(size, size));
    mpClass->setText(isSameClass ? word : QStringLiteral("of several classes"));
    mpName->setModified(false);
    showName();
}

void FObjectEditorPanel::rebuild() {
    FPendingEdit::commitAll();
    mShown = FSelectionSet::instance()->getObjects();
    mShown.erase(std::remove_if(mShown.begin(), mShown.end(), &isRemoved), mShown.end());
    mEdited.clear();
    if (mShown.isEmpty()) {
        mpForm->setReceiver({});
        mpEntries->setConfiguration(nullptr);
        mpDefined->setDefinition(nullptr);
        mpPages->setCurrentIndex(0);
        return;
    }
    auto* list = new FObjectList;
    const FExprBase keep(list);
    for (const FExpr<FObject>& object : mShown) {
        mEdited.append(edited(object));
        list->add(mEdited.last());
    }
    list->setAsSelectionSet(true);
    showHeader();
    mpForm->setReceiver(mEdited.size() == 1 ? FExprBase(mEdited.first()) : keep);
    showEntries();
    mpPages->setCurrentIndex(1);
    if (const auto* entry = mShown.size() == 1 ? dynamic_cast<FEntry*>(mShown.first().getObject()) : nullptr) {
        // It may have been added just now.
        mpEntries->model().follow();
        mpEntries->showEntry(entry->getFullName());
    }
}

void FObjectEditorPanel::showEntries() {
    FConfiguration* configuration = configurationOf(mEdited);
    auto* definition = mEdited.size() == 1 ? dynamic_cast<FDefinition*>(mEdited.first().getObject()) : nullptr;
    mpEntries->setConfiguration(configuration);
    mpEntries->setVisible(configuration);
    mpDefined->setDefinition(definition);
    mpDefined->setVisible(definition);
    if (configuration && mEdited.size() > 1) {
        mpClass->setText(QStringLiteral("entries of %1").arg(configuration->getName()));
    }
    mpScroll->setVisible((!configuration && !definition) || !mpForm->fields().isEmpty());
    orderTabs();
    mShareHeight.request();
}

// Qt puts the fields, which are made again for each selection, after all other widgets of the window.
void FObjectEditorPanel::orderTabs() {
    QWidget* previous = mpName;
    for (FAttributeEditor* field : mpForm->fields()) {
        setTabOrder(previous, field);
        previous = field;
    }
}

// A short form leaves the rest to the entries.
void FObjectEditorPanel::shareHeight() {
    const int form = std::min(mpForm->sizeHint().height(), static_cast<int>(mFormShare * mpSplitter->height()));
    const bool hasEntries = mpEntries->isVisibleTo(mpSplitter) || mpDefined->isVisibleTo(mpSplitter);
    if (hasEntries && mpScroll->isVisibleTo(mpSplitter)) {
        // Only one of the two trees is visible, and takes what is left.
        const int rest = mpSplitter->height() - form - mpSplitter->handleWidth();
        mpSplitter->setSizes({form, rest, rest});
    }
}

bool FObjectEditorPanel::eventFilter(QObject* watched, QEvent* event) {
    const bool changesHeight = (watched == mpSplitter && event->type() == QEvent::Resize) ||
                               (watched == mpForm && event->type() == QEvent::LayoutRequest);
    if (watched == mpScroll->viewport() && event->type() == QEvent::Resize) {
        const int width = mpScroll->viewport()->width();
        constexpr int narrow = 34;  // characters
        mpForm->fit(width);
        mpHeader->setDirection(width < narrow * fontMetrics().averageCharWidth() ? QBoxLayout::TopToBottom
                                                                                 : QBoxLayout::LeftToRight);
    }
    if (changesHeight) {
        mShareHeight.request();
    }
    return QWidget::eventFilter(watched, event);
}

// Fields and entries follow the model themselves; only what they belong to may be another one.
void FObjectEditorPanel::follow() {
    if (mShown.isEmpty() || !mShown.first()) {
        return;
    }
    if (edited(mShown.first()) != mEdited.first() || isRemoved(mShown.first())) {
        rebuild();
    } else if (configurationOf(mEdited) != mpEntries->model().configuration()) {
        showEntries();
    }
}

// What is shown must not outlive the object, even if the step that destroys it isn't over.
void FObjectEditorPanel::clearFor(const FManaged* left) {
    const auto isGone = [left](const FExprBase& shown) { return shown.identity() == left->getBlock(); };
    if (std::any_of(mShown.begin(), mShown.end(), isGone) || std::any_of(mEdited.begin(), mEdited.end(), isGone) ||
        left == mpEntries->model().configuration()) {
        mShown.clear();
        mEdited.clear();
        mpForm->setReceiver({});
        mpEntries->setConfiguration(nullptr);
        mpDefined->setDefinition(nullptr);
        mpPages->setCurrentIndex(0);
        mRebuild.request();
    }
}

void FObjectEditorPanel::hold(bool isHeld) {
    mpForm->hold(isHeld);
    mpEntries->model().hold(isHeld);
    mpDefined->model().hold(isHeld);
}
