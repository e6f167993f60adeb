#pragma once

#include "genericintegration/templates/FGenIntFile.h"
#include "genericintegration/templates/FGenIntResultsFileValue.h"
#include "genericintegration/templates/FTemplateCache.h"

#include <memory>

class FCmdTable;
class FParameter;

/**
 * A result template: one output file of the external program, how its lines are cut into columns, and the values to
 * read from it. An editor works on one value at a time, the current one.
 *
 * In find-numbers mode a column is the n-th number of the line, and the separators are ignored.
 */
class FGenIntResultsFile : public FClass<FGenIntResultsFile, FGenIntFile> {
 public:
    static FClassData mClass;

    static FGenIntResultsFile* create(const QString& name);
    /** The result templates among files, in their order; only those that exist. */
    static QList<FExpr<FGenIntResultsFile>> among(const QList<FExpr<FGenIntFile>>& files);
    /** A new template with the separators of this one, and as many values, all blank. */
    FObject* clone() const override;
    void init(const FGenIntResultsFile* other);
    /** Takes over separators and values, with the current one, besides what all templates do. */
    FGenIntResultsFile& operator=(const FGenIntResultsFile& other);

    // ---- values ----
    /**
     * Adds a value and makes it the current one. Without a name it gets "ResultsValue" and a number. Names aren't made
     * unique here.
     */
    void addValue(const QString& name, int line, int column, const QString& anchor, const QString& occurrence,
                  bool calcAverage, const FExpr<FUnsigned>& numAverageRows);
    /** The first value of that name, in any case; an empty handle if there is none. */
    FExpr<FGenIntResultsFileValue> getValue(const QString& name) const;
    const FExpr<FObjectList>& getValues() const { return mValues; }
    /** Restores values from their text forms: a list of lists. Other elements give blank values. */
    void setValues(const FExpr<FObjectList>& values);

    // ---- the current value ----
    const FExpr<FGenIntResultsFileValue>& getCurValue() const { return mCurValue; }
    void setCurValue(const FExpr<FGenIntResultsFileValue>& value) { mCurValue = value; }
    /** Removes the current value from the list; it stays the current one until the caller moves on. */
    void deleteCurrentValue();
    /** Renames the current value; a name that another has gets a suffix. Returns the name that it got. */
    QString setCurValueName(const QString& name);
    int getCurLine() const;
    int getCurColumn() const;
    bool getCurCalcAverage() const;
    FExpr<FUnsigned> getCurNumAverageRows() const;
    QString getCurrentAnchor() const;
    void setCurrentAnchor(const QString& anchor);
    GenIntAnchorOccurrence getCurrentOccurrence() const;
    void setCurrentOccurrence(GenIntAnchorOccurrence occurrence);

    // ---- separators ----
    bool getNumberSeparator() const { return mNumberSeparator; }
    void setNumberSeparator(bool numbers);
    bool getSpacesAndTabsSeparator() const { return mSpacesAndTabsSeparator; }
    void setSpacesAndTabsSeparator(bool spacesAndTabs);
    const QString& getRegExprSeparator() const { return mRegExprSeparator; }
    void setRegExprSeparator(const QString& expression);

    // Script commands with names and effects of their own, beside those above.
    /** As `setRegExprSeparator`; a filled expression also ends find-numbers mode. */
    void setRegExpSeparator(const QString& expression);
    QString getRegExpSeparator() const { return {}; }
    /** True ends find-numbers mode and sets white space as separator; false does nothing. */
    void setSpaceSeparator(bool space);
    bool getSpaceSeparator() const { return false; }
    void setTabSeparator(bool tab) { setSpaceSeparator(tab); }
    bool getTabSeparator() const { return false; }

    FGenIntFile* setFileName(const QString& fileName) override;

    /**
     * Makes a parameter "eval_" + value name that reads the value from the results of `ownerName`, a computation.
     * An empty handle if there is no such value, or nothing of that name.
     */
    FExpr<FParameter> createParam(const QString& valueName, const QString& ownerName, bool highlight) const;

    /** The reader's cache; only the reader sets it. */
    std::shared_ptr<const FTemplateCache>& readerCache() const { return mReaderCache; }

 protected:
    explicit FGenIntResultsFile(const QString& name = QString());
    FGenIntResultsFile(const FGenIntResultsFile& other);
    void letGo() override;

 private:
    friend class FClass<FGenIntResultsFile, FGenIntFile>;

    static std::vector<std::unique_ptr<FStateField>> fields();
    static void declareCommands(FCmdTable& table);

    bool mNumberSeparator = true;
    bool mSpacesAndTabsSeparator = false;
    QString mRegExprSeparator;
    FExpr<FObjectList> mValues;
    FExpr<FGenIntResultsFileValue> mCurValue;
    mutable std::shared_ptr<const FTemplateCache> mReaderCache;
};
