#include "host/gui/panels/FAttributeForm.h"

#include "host/core/FDocuArea.h"
#include "host/gui/base/FGuiSettings.h"
#include "host/gui/fields/FAttributeEditor.h"
#include "host/script/FAttributeQuery.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace {

constexpr int widestLabel = 18;  // characters; longer labels take several lines

/** Margins of a row, as all forms of the program have them. */
constexpr QMargins rowMargins(3, 4, 3, 4);

QString toolTipOf(const FCmdRow& row, bool isRequired) {
    const auto& prototype = static_cast<const FCmd&>(*row.commandClass->mpNull);
    prototype.initCmdDocu();
    const QString text = prototype.getDocuString(static_cast<int>(FDocuArea::Description)).toHtmlEscaped();
    const QString required = isRequired ? QStringLiteral("<b>Required.</b> ") : QString();
    return QStringLiteral("<p>%1%2</p>").arg(required, text);
}

}  // namespace

FAttributeForm::FAttributeForm(QWidget* parent) : QWidget(parent), mpColumn(new QVBoxLayout(this)) {
    mpColumn->setContentsMargins(0, 0, 0, 0);
}

void FAttributeForm::clear() {
    mFields.clear();
    mLabels.clear();
    mRows.clear();
    if (mpGroups) {
        // A field may be the one whose commit has led here.
        mpColumn->removeWidget(mpGroups);
        mpGroups->hide();
        mpGroups->deleteLater();
        mpGroups = nullptr;
    }
}

void FAttributeForm::setReceiver(const FExprBase& receiver) {
    clear();
    const FAttributeQuery query(receiver);
    FAttributeQuery::Filter filter;
    filter.userLevel = FGuiSettings::getUserLevel();
    mpGroups = new QWidget(this);
    auto* groups = new QVBoxLayout(mpGroups);
    groups->setContentsMargins(0, 0, 0, 0);
    groups->setSpacing(0);
    QWidget* group = nullptr;
    QString title;
    for (const FCmdRow* row : query.getAttributes(filter)) {
        if (!group || row->presentation.category != title) {
            title = row->presentation.category;
            group = addGroup(title);
            groups->addWidget(group);
        }
        addRow(group, query, *row, receiver);
    }
    for (QWidget* each : mpGroups->findChildren<QWidget*>(QStringLiteral("AttributeGroup"))) {
        const auto rows = each->findChildren<QWidget*>(QStringLiteral("AttributeRow"));
        rows.last()->setProperty("last", true);
    }
    groups->addStretch();
    mpColumn->addWidget(mpGroups);
    alignLabels();
    for (FAttributeEditor* field : mFields) {
        field->refresh();
        field->hold(mIsHeld);
    }
}

QWidget* FAttributeForm::addGroup(const QString& title) {
    auto* group = new QWidget(mpGroups);
    group->setObjectName(QStringLiteral("AttributeGroup"));
    auto* rows = new QVBoxLayout(group);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    if (!title.isEmpty()) {
        auto* heading = new QLabel(title, group);
        heading->setContentsMargins(rowMargins);
        QFont bold;
        bold.setBold(true);
        heading->setFont(bold);
        heading->setWordWrap(true);
        rows->addWidget(heading);
    }
    return group;
}

void FAttributeForm::addRow(QWidget* group, const FAttributeQuery& query, const FCmdRow& row,
                            const FExprBase& receiver) {
    const FExprBase clone(row.commandClass->mpNull->clone());
    auto* command = static_cast<FAttribCmd*>(clone.getStored());
    command->setReceiver(receiver);
    auto* line = new QWidget(group);
    line->setObjectName(QStringLiteral("AttributeRow"));
    auto* layout = new QBoxLayout(QBoxLayout::LeftToRight, line);
    layout->setContentsMargins(rowMargins);
    FAttributeEditor* field = FAttributeEditor::create(command);
    const bool isRequired = query.isRequired(row);
    auto* label = new QLabel(isRequired ? field->label() + QStringLiteral(" *") : field->label(), line);
    label->setWordWrap(true);
    label->setBuddy(field);
    const QString tip = toolTipOf(row, isRequired);
    label->setToolTip(tip);
    field->setToolTip(tip);
    layout->addWidget(label);
    label->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    layout->addWidget(field, 1);
    group->layout()->addWidget(line);
    mFields.append(field);
    mLabels.append(label);
    mRows.append(layout);
    if (row.presentation.needsGuiReinit) {
        connect(field, &FAttributeEditor::committed, this, [this] { mRebuild(); });
    }
}

void FAttributeForm::alignLabels() {
    int width = 0;
    for (const QLabel* label : mLabels) {
        const QFontMetrics metrics = label->fontMetrics();
        width = std::max(width, metrics.horizontalAdvance(label->text()) + metrics.averageCharWidth());
    }
    width = std::min(width, widestLabel * fontMetrics().averageCharWidth());
    QLineEdit sample;
    sample.setFont(font());
    const int heightOfLine = sample.sizeHint().height();
    int leastField = 0;
    for (const FAttributeEditor* field : mFields) {
        leastField = std::max(leastField, field->minimumSizeHint().width());
    }
    const int spacing = fontMetrics().height() / 3;
    const bool isStacked = mWidth > 0 && mWidth < rowMargins.left() + width + spacing + leastField + rowMargins.right();
    for (int i = 0; i < mLabels.size(); ++i) {
        mRows[i]->setDirection(isStacked ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
        mRows[i]->setSpacing(isStacked ? 0 : spacing);
        mRows[i]->setAlignment(mFields[i], isStacked ? Qt::AlignTop : Qt::Alignment());
        // The first line of a label is level with that of its field.
        const int height = std::min(mFields[i]->sizeHint().height(), heightOfLine);
        const int above = std::max((height - mLabels[i]->fontMetrics().height()) / 2, 0);
        mLabels[i]->setContentsMargins(0, isStacked ? 0 : above, 0, 0);
        mLabels[i]->setMinimumWidth(isStacked ? 0 : width);
        // Else a label that could be wrapped asks for the height of one word a line.
        mLabels[i]->setMinimumHeight(isStacked ? 1 : 0);
        mLabels[i]->setMaximumWidth(isStacked ? QWIDGETSIZE_MAX : width);
    }
}

void FAttributeForm::fit(int width) {
    if (width != mWidth) {
        mWidth = width;
        alignLabels();
    }
}

void FAttributeForm::hold(bool isHeld) {
    mIsHeld = isHeld;
    for (FAttributeEditor* field : mFields) {
        field->hold(isHeld);
    }
}

void FAttributeForm::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        alignLabels();
    }
}
