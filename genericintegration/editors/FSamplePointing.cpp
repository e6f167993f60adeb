#include "genericintegration/editors/FSamplePointing.h"

#include "genericintegration/editors/FResultsFileSteps.h"
#include "genericintegration/editors/FResultsPreview.h"
#include "genericintegration/editors/FSamplePane.h"
#include "genericintegration/io/FTemplateValues.h"
#include "host/core/FUserStep.h"
#include "host/gui/base/FIcons.h"
#include "host/gui/base/FLabelText.h"

#include <QMenu>

FSamplePointing::FSamplePointing(const FExpr<FGenIntResultsFile>& file, FResultsFileSteps& steps, FSamplePane& pane,
                                 FResultsPreview& preview)
    : mFile(file), mSteps(steps), mPane(pane), mPreview(preview) {}

std::optional<FPlaceProposal> FSamplePointing::proposalAt(int shown) const {
    FUserStep::commitEdits();
    return mFile ? FPlaceProposal::at(mPane.sample(), FTemplateValues::separatorsOf(*mFile.ptr()),
                                      mPane.positionOf(shown))
                 : std::nullopt;
}

bool FSamplePointing::readNumberAt(int position) {
    const std::optional<FPlaceProposal> proposal = proposalAt(position);
    if (!proposal) {
        return false;
    }
    const int row = rowReading(proposal->range);
    if (row >= 0) {
        emit rowChosen(row);
    } else {
        mSteps.addValue(proposal->value, FExpr<FUnsigned>(new FUnsigned(0)));
        emit valueAdded();
    }
    return true;
}

// -1 if none does.
int FSamplePointing::rowReading(FTextRange number) const {
    const FTableData* table = mPreview.table().ptr();
    for (int row = 0; table && row < table->getRowCount(); ++row) {
        const FNumberOrigin& origin = table->getOrigin(row);
        const bool isPlace = !origin.rows && origin.line > 0 && origin.column > 0;
        if (isPlace && mPane.sample().rangeOf(origin.line, origin.column, number.length) == number) {
            return row;
        }
    }
    return -1;
}

void FSamplePointing::moveValue(const FValueDescription& place, const QString& label) {
    mSteps.move(place, label);
    emit valueMoved();
}

void FSamplePointing::setAnchor(FTextRange selection) {
    const FExpr<FGenIntResultsFileValue> value = mSteps.currentValue();
    if (!value) {
        return;
    }
    const FSeparatorSettings separators = FTemplateValues::separatorsOf(*mFile.ptr());
    const FResultSample& sample = mPane.sample();
    const FFoundValue found = sample.read(FTemplateValues::describePlace(*value.ptr()), separators);
    // The value stays at its number if that can be counted from there.
    std::optional<FPlaceProposal> proposal;
    if (found.column > 0) {
        const FTextRange number = sample.rangeOf(found.line, found.column, 1);
        proposal = FPlaceProposal::from(sample, separators, number.begin, selection);
    }
    if (proposal) {
        moveValue(proposal->value, QStringLiteral("change anchor"));
        return;
    }
    const int line = sample.lineAtPosition(selection.begin);
    const QString text = sample.line(line).mid(selection.begin - sample.linePosition(line), selection.length);
    mSteps.setAnchor(text);
    emit valueMoved();
}

void FSamplePointing::fillMenu(QMenu& menu, int position) {
    const std::optional<FPlaceProposal> proposal = proposalAt(position);
    QAction* first = menu.actions().value(0);
    const auto insert = [&](const QString& id, const QString& icon, const QString& text, bool isPossible,
                            const std::function<void()>& act) {
        auto* action = new QAction(FIcons::get(icon), text, &menu);
        action->setObjectName(id);
        action->setEnabled(isPossible);
        connect(action, &QAction::triggered, this, act);
        menu.insertAction(first, action);
    };
    const FExpr<FGenIntResultsFileValue> value = mSteps.currentValue();
    const FTextRange selection = mPane.selection();
    const FResultSample& sample = mPane.sample();
    const bool isInLine = sample.lineAtPosition(selection.begin) == sample.lineAtPosition(selection.end());
    insert(QStringLiteral("readNumber"), QStringLiteral("list-add"), QStringLiteral("&Read this number"),
           proposal.has_value(), [this, position] { readNumberAt(position); });
    insert(QStringLiteral("readHere"), QStringLiteral("go-jump"),
           value ? QStringLiteral("Read \"%1\" &here").arg(FLabelText::literal(value->mName))
                 : QStringLiteral("Read the current value &here"),
           proposal && value, [this, proposal] { moveValue(proposal->value, QStringLiteral("change place")); });
    insert(QStringLiteral("useAsAnchor"), QStringLiteral("anchor"), QStringLiteral("&Use as anchor"),
           value && isInLine && selection.length > 0, [this, selection] { setAnchor(selection); });
    if (first) {
        menu.insertSeparator(first);
    }
}
