#pragma once

#include "genericintegration/templates/GenIntAnchorOccurrence.h"
#include "host/core/FStateField.h"

/**
 * Where one named number is in an output file, and how it is read. It holds no result.
 *
 * A plain record: the result template and its editor work on the members directly.
 */
class FGenIntResultsFileValue : public FClass<FGenIntResultsFileValue, FBasicType> {
 public:
    static FClassData mClass;

    FGenIntResultsFileValue() = default;
    /** @param occurrence  text of the occurrence, in any case; an unknown one leaves the default `Last` */
    FGenIntResultsFileValue(const QString& name, int line, int column, const QString& anchor, const QString& occurrence,
                            const FObject* type, const QString& importType, bool calcAverage,
                            const FExpr<FUnsigned>& numAverageRows);
    FGenIntResultsFileValue(const FGenIntResultsFileValue& other);
    FGenIntResultsFileValue& operator=(const FGenIntResultsFileValue& other);
    FObject* clone() const override { return new FGenIntResultsFileValue(*this); }

    /**
     * Reads the list of the text form: at least seven elements, in the order of `toString`; with more than seven, nine.
     * Anything else changes nothing.
     */
    void setPrimitiveValue(const FExpr<FObject>& value) override;
    /** What setPrimitiveValue can't take over of a list, and what becomes of it: "has 3 elements …"; empty if nothing.
     */
    static QString faultOf(const FExpr<FObject>& value);
    /** The name in a list of the text form, for a message: `, "name",`; empty if there is none. */
    static QString quotedNameIn(const FExpr<FObject>& value);
    /** `["name",line,column,"anchor",occurrence,"type","import type",average,rows]`; quotes aren't escaped. */
    QString toString() const override;
    /** The same as script text, in which every name and anchor comes back. */
    QString toHistoryString() const override;

    /** "has the line …": what the text form had in place of a whole number, unless the number was set since; empty if
     *  nothing. */
    QString placeFault() const;

    /** Sets the number of rows of the average; the value depends on it. */
    void setNumAverageRows(const FExpr<FUnsigned>& rows);

    QString mName;
    int mLine = 0;    //!< from 0 downwards from the anchor's line, or from the top; negative: upwards
    int mColumn = 0;  //!< from 0
    QString mAnchor;
    FEnum<GenIntAnchorOccurrence> mOccurrence;
    const FObject* mType = FDouble::null();  //!< prototype of the value's type; null for a class that isn't known
    QString mImportType;                     //!< for the name of a file to import: its format
    bool mCalcAverage = false;               //!< the average of the last rows instead of one place
    FExpr<FUnsigned> mNumAverageRows;
    QString mGivenLine;    //!< what the text form had in place of a whole number, as script text; empty if nothing
    QString mGivenColumn;  //!< the same for the column

 private:
    static std::vector<std::unique_ptr<FStateField>> fields();
    void setAverage(const std::vector<FExpr<FObject>>& elements);
    /** Fields that the two text forms write differently. */
    struct Texts {
        QString line;
        QString column;
        QString occurrence;
        const FObject* type;
    };
    QString record(QString (*textOf)(const QString&), const Texts& own) const;
    /** What was given for the line, unless the line was set since; empty if it was a whole number. */
    QString oddLine() const;
    QString oddColumn() const;
};
