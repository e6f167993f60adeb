#include "genericintegration/editors/FValueSelector.h"

#include "genericintegration/editors/FFormFields.h"
#include "host/gui/base/FOneUndo.h"
#include "host/gui/base/FToolButton.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QRegExpValidator>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

FValueSelector::FValueSelector()
    : mpNames(FFormFields::combo("valueSelector", "Name", {})),
      mpDelete(new FToolButton(QStringLiteral("deleteValue"), QStringLiteral("edit-delete"),
                               QStringLiteral("Delete Value"))),
      mpAdd(new FToolButton(QStringLiteral("addValue"), QStringLiteral("list-add"), QStringLiteral("Add Value"))) {
    mpNames->setEditable(true);
    mpNames->setInsertPolicy(QComboBox::InsertAtCurrent);
    mpNames->setDuplicatesEnabled(true);
    mpNames->setCompleter(nullptr);
    mpNames->lineEdit()->setValidator(new QRegExpValidator(QRegExp(QStringLiteral("[\\d|\\s|\\w]*")), mpNames));
    new FOneUndo(mpNames, FOneUndo::Change::EachKey);
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(mpDelete);
    line->addWidget(mpNames, 1);
    line->addWidget(mpAdd);
    connect(mpNames, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this](int index) { emit chosen(mpNames->itemText(index)); });
    connect(mpNames->lineEdit(), &QLineEdit::textEdited, this, &FValueSelector::nameEdited);
    connect(mpNames->lineEdit(), &QLineEdit::editingFinished, this, &FValueSelector::nameFinished);
    connect(mpNames->lineEdit(), &QLineEdit::returnPressed, this, [this] {
        if (QWidget* back = std::exchange(mpBack, nullptr).data()) {
            back->setFocus();
        }
    });
    connect(mpDelete, &QToolButton::clicked, this, &FValueSelector::deleteWanted);
    connect(mpAdd, &QToolButton::clicked, this, &FValueSelector::addWanted);
}

void FValueSelector::show(const std::vector<FExpr<FObject>>& values, const std::vector<FExpr<FObject>>& all,
                          const FExpr<FGenIntResultsFileValue>& current) {
    const QSignalBlocker blocker(mpNames);
    const bool isTyping = mpNames->lineEdit()->hasFocus();
    const int cursor = mpNames->lineEdit()->cursorPosition();
    const auto numberOf = [&all](const FExprBase& value) {
        return static_cast<int>(std::find(all.begin(), all.end(), value) - all.begin());
    };
    mpNames->clear();
    for (const FExpr<FObject>& element : values) {
        const FExpr<FGenIntResultsFileValue> value(element);
        if (value) {
            mpNames->addItem(value->mName, numberOf(element));
        }
    }
    mpNames->setCurrentIndex(current ? mpNames->findData(numberOf(current)) : -1);
    if (isTyping) {
        mpNames->lineEdit()->setCursorPosition(cursor);
    }
}

void FValueSelector::showName(const QString& name) {
    const QSignalBlocker blocker(mpNames);
    mpNames->setItemText(mpNames->currentIndex(), name);
}

void FValueSelector::showName(const QString& name, const QString& typed) {
    QLineEdit& edit = *mpNames->lineEdit();
    const int cursor = edit.cursorPosition();
    showName(name);
    edit.setText(typed);
    edit.setCursorPosition(cursor);
}

void FValueSelector::enableFields(bool hasValue) {
    mpNames->lineEdit()->setReadOnly(!hasValue);
    mpNames->setEnabled(hasValue || mpNames->count() > 0);
    mpDelete->setEnabled(hasValue);
}

QString FValueSelector::name() const {
    return mpNames->itemText(mpNames->currentIndex());
}

int FValueSelector::number() const {
    const QVariant number = mpNames->currentData();
    return number.isValid() ? number.toInt() : -1;
}

bool FValueSelector::choose(const QString& name) {
    const int found = mpNames->findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (found >= 0) {
        mpNames->setCurrentIndex(found);
    }
    return found >= 0;
}

void FValueSelector::focusName() {
    mpNames->setFocus();
}

void FValueSelector::startNaming(QWidget* back) {
    mpBack = back;
    focusName();
    mpNames->lineEdit()->selectAll();
}
