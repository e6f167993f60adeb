#pragma once

#include "genericintegration/io/FValueDescription.h"
#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/gui/base/FStepJoiner.h"

#include <functional>

/**
 * What the user of an editor changes in a result template. Each change is a step of the history. Nothing happens
 * without a template, or to the current value if there is none.
 */
class FResultsFileSteps {
 public:
    /** @param file  may be empty, and may become another one; outlives the object */
    explicit FResultsFileSteps(const FExpr<FGenIntResultsFile>& file) : mFile(file) {}

    /** True during a change. */
    bool isChanging() const { return mIsChanging; }
    /** The current value; after a script has replaced all values, the one of the same name. */
    FExpr<FGenIntResultsFileValue> currentValue() const;
    /** The value of exactly that name, else one whose name differs only in case. */
    FExpr<FGenIntResultsFileValue> valueNamed(const QString& name) const;

    // ---- the template ----
    /** Parameters follow. */
    void setFileName(const QString& name, const QString& label);
    void setNumberSeparator(bool numbers);
    void setSpacesAndTabsSeparator(bool isOn);
    void setRegularExpression(const QString& expression);
    void setCurrentValue(const FExpr<FGenIntResultsFileValue>& value);
    /** Adds a value; one without a name gets a name. */
    void addValue(const FValueDescription& place, const FExpr<FUnsigned>& averageRows);
    /** Deletes the current value, and makes another one the current one. */
    void deleteValue(const QString& next);

    // ---- the current value ----
    /** Parameters follow. Returns the name that it was given. */
    QString rename(const QString& name);
    void setType(const QString& type, const QString& importType);
    void setImportType(const QString& type);
    void setLine(int line);
    void setColumn(int column);
    void setAnchor(const QString& anchor);
    void setOccurrence(GenIntAnchorOccurrence occurrence);
    /** @param column  from where the value counts its columns then */
    void setAverage(bool isOn, const FObject* type, int column);
    void setAverageRows(const FExpr<FUnsigned>& rows);
    void move(const FValueDescription& place, const QString& label);

    // ---- others ----
    /** Makes a parameter that reads a value from the results of a computation. */
    void createParameter(const QString& value, const QString& computation);

 private:
    using Change = std::function<void(FGenIntResultsFile& file)>;
    using ValueChange = std::function<void(FGenIntResultsFileValue& value)>;

    void change(const QString& label, const Change& change);
    /** @param joins  whether such steps on the same value become one */
    void changeValue(const QString& label, const ValueChange& change, bool joins = false);
    void inStep(const QString& label, bool joins, const Change& change);

    const FExpr<FGenIntResultsFile>& mFile;
    FStepJoiner mSteps;
    bool mIsChanging = false;
};
