#include "genericintegration/editors/FResultsFileSteps.h"

#include "genericintegration/io/FTemplateValues.h"
#include "genericintegration/marking/FValueParameters.h"
#include "host/core/FUserStep.h"

#include <QScopedValueRollback>

#include <algorithm>

namespace {

QString separatorLabel() {
    return QStringLiteral("change column separator");
}

GenIntAnchorOccurrence occurrenceOf(const FValueDescription& place) {
    return place.anchor.occurrence == FAnchorOccurrence::First ? GenIntAnchorOccurrence::First
                                                               : GenIntAnchorOccurrence::Last;
}

}  // namespace

FExpr<FGenIntResultsFileValue> FResultsFileSteps::currentValue() const {
    const FExpr<FGenIntResultsFileValue> value = mFile ? mFile->getCurValue() : FExpr<FGenIntResultsFileValue>();
    if (!value) {
        return {};
    }
    const std::vector<FExpr<FObject>>& values = mFile->getValues()->getObjects();
    const bool isThere = std::find(values.begin(), values.end(), value) != values.end();
    return isThere ? value : valueNamed(value->mName);
}

FExpr<FGenIntResultsFileValue> FResultsFileSteps::valueNamed(const QString& name) const {
    for (const FExpr<FObject>& element : mFile->getValues()->getObjects()) {
        const FExpr<FGenIntResultsFileValue> value(element);
        if (value && value->mName == name) {
            return value;
        }
    }
    return mFile->getValue(name);
}

void FResultsFileSteps::inStep(const QString& label, bool joins, const Change& change) {
    // What was typed elsewhere may concern the template, too.
    FUserStep::commitEdits();
    if (!mFile) {
        return;
    }
    const QScopedValueRollback<bool> guard(mIsChanging, true);
    FUserStep step(label);
    const FExpr<FGenIntResultsFileValue> value = currentValue();
    if (joins) {
        mSteps.join(step, label + QString::number(reinterpret_cast<quintptr>(value.getStored())));
    }
    FHistory::instance()->addStep(mFile.ptr());
    mFile->setCurValue(value);
    change(*mFile.ptr());
}

void FResultsFileSteps::change(const QString& label, const Change& change) {
    inStep(label, false, [&](FGenIntResultsFile& file) {
        change(file);
        file.setOutOfDate(true);
    });
}

void FResultsFileSteps::changeValue(const QString& label, const ValueChange& change, bool joins) {
    FUserStep::commitEdits();
    const FExpr<FGenIntResultsFileValue> value = currentValue();
    if (value) {
        inStep(label, joins, [&](FGenIntResultsFile& file) {
            change(*value.ptr());
            file.setOutOfDate(true);
        });
    }
}

// ---- the template ----

void FResultsFileSteps::setFileName(const QString& name, const QString& label) {
    if (!mFile || name == mFile->getFileName()) {
        return;
    }
    change(label, [&name](FGenIntResultsFile& file) {
        const QString before = file.getFileName();
        file.setFileName(name);
        for (const FGenIntResultsFileValue* value : FTemplateValues::among(file.getValues()->getObjects())) {
            FValueParameters::follow(file, {{}, before, value->mName}, {{}, name, value->mName});
        }
    });
}

void FResultsFileSteps::setNumberSeparator(bool numbers) {
    change(separatorLabel(), [numbers](FGenIntResultsFile& file) { file.setNumberSeparator(numbers); });
}

void FResultsFileSteps::setSpacesAndTabsSeparator(bool isOn) {
    change(separatorLabel(), [isOn](FGenIntResultsFile& file) { file.setSpacesAndTabsSeparator(isOn); });
}

void FResultsFileSteps::setRegularExpression(const QString& expression) {
    change(separatorLabel(), [&expression](FGenIntResultsFile& file) { file.setRegExprSeparator(expression); });
}

void FResultsFileSteps::setCurrentValue(const FExpr<FGenIntResultsFileValue>& value) {
    mSteps.end();
    inStep(QStringLiteral("change results value"), false,
           [&value](FGenIntResultsFile& file) { file.setCurValue(value); });
}

void FResultsFileSteps::addValue(const FValueDescription& place, const FExpr<FUnsigned>& averageRows) {
    change(QStringLiteral("add results value"), [&](FGenIntResultsFile& file) {
        const QString occurrence = FEnum<GenIntAnchorOccurrence>(occurrenceOf(place)).getStringValue();
        file.addValue(QString(), place.line, place.column, place.anchor.text, occurrence, place.average, averageRows);
        if (!place.name.isEmpty()) {
            file.setCurValueName(place.name);
        }
    });
}

void FResultsFileSteps::deleteValue(const QString& next) {
    change(QStringLiteral("delete results value"), [&next](FGenIntResultsFile& file) {
        file.deleteCurrentValue();
        file.setCurValue(file.getValue(next));
    });
}

// ---- the current value ----

QString FResultsFileSteps::rename(const QString& name) {
    QString given = name;
    changeValue(
        QStringLiteral("Set results value name"),
        [&](const FGenIntResultsFileValue& value) {
            const QString before = value.mName;
            given = mFile->setCurValueName(name);
            FValueParameters::follow(*mFile.ptr(), {{}, mFile->getFileName(), before},
                                     {{}, mFile->getFileName(), given});
        },
        true);
    return given;
}

void FResultsFileSteps::setType(const QString& type, const QString& importType) {
    changeValue(QStringLiteral("change value type"), [&](FGenIntResultsFileValue& value) {
        value.mType = FObject::getPrototype(type);
        value.mImportType = importType;
    });
}

void FResultsFileSteps::setImportType(const QString& type) {
    changeValue(QStringLiteral("change file import type"),
                [&type](FGenIntResultsFileValue& value) { value.mImportType = type; });
}

void FResultsFileSteps::setLine(int line) {
    changeValue(
        QStringLiteral("change line"), [line](FGenIntResultsFileValue& value) { value.mLine = line; }, true);
}

void FResultsFileSteps::setColumn(int column) {
    changeValue(
        QStringLiteral("change column"), [column](FGenIntResultsFileValue& value) { value.mColumn = column; }, true);
}

void FResultsFileSteps::setAnchor(const QString& anchor) {
    changeValue(QStringLiteral("change anchor"), [&anchor](FGenIntResultsFileValue& value) { value.mAnchor = anchor; });
}

void FResultsFileSteps::setOccurrence(GenIntAnchorOccurrence occurrence) {
    changeValue(QStringLiteral("change occurrence"), [occurrence](FGenIntResultsFileValue& value) {
        value.mOccurrence = FEnum<GenIntAnchorOccurrence>(occurrence);
    });
}

void FResultsFileSteps::setAverage(bool isOn, const FObject* type, int column) {
    const QString label = isOn ? QStringLiteral("active") : QStringLiteral("deactivate");
    changeValue(label + QStringLiteral(" average calculation"), [&](FGenIntResultsFileValue& value) {
        value.mCalcAverage = isOn;
        value.mType = type;
        value.mColumn = column;
    });
}

void FResultsFileSteps::setAverageRows(const FExpr<FUnsigned>& rows) {
    changeValue(
        QStringLiteral("change average rows"),
        [&rows](FGenIntResultsFileValue& value) { value.setNumAverageRows(rows); }, true);
}

void FResultsFileSteps::move(const FValueDescription& place, const QString& label) {
    changeValue(label, [&place](FGenIntResultsFileValue& value) {
        value.mLine = place.line;
        value.mColumn = place.column;
        value.mAnchor = place.anchor.text;
        value.mOccurrence = FEnum<GenIntAnchorOccurrence>(occurrenceOf(place));
        value.mCalcAverage = false;
    });
}

// ---- others ----

// The template stays as it is.
void FResultsFileSteps::createParameter(const QString& value, const QString& computation) {
    const FUserStep step(QStringLiteral("create evaluation: eval_") + value);
    mFile->createParam(value, computation, true);
}
