#pragma once

#include "host/core/FExport.h"
#include "host/core/FNumber.h"

#include <QMap>
#include <QStringList>

/** What an enumeration is made of: its default, and its texts by number. */
class MERIX_EXPORT FEnumTable {
 public:
    FEnumTable(unsigned int defaultValue, const QMap<unsigned int, QString>& texts);

    unsigned int getDefaultValue() const { return mDefaultValue; }
    const QMap<unsigned int, QString>& getTexts() const { return mTexts; }

    /** Whether a word is a text of a registered enumeration, so that a script may write it bare. */
    static bool isWord(const QString& word);
    /** All these texts, in no order. */
    static QStringList getWords();

 private:
    unsigned int mDefaultValue;
    QMap<unsigned int, QString> mTexts;
};

/** A value of an enumeration: a number with a text. */
class MERIX_EXPORT FEnumBase : public FClass<FEnumBase, FUnsigned> {
 public:
    static FClassData mClass;

    explicit FEnumBase(unsigned int value = 0) : FClass(value) {}

    /** The text of the number; "[KEY-OUT-OF-RANGE]" for one that isn't in the table. */
    QString getStringValue() const;
    /** The texts in ascending order of their numbers. */
    QStringList getStringValues() const;
    using FUnsigned::getValue;
    void setValue(unsigned int value) { mValue = value; }
    /** Compares without regard to case; false, with the value kept, for an unknown text. */
    bool setValue(const QString& text);
    /** Takes a text as `setValue` does, or a number of the table. False, with the value kept, for anything else. */
    bool takeValue(const FObject& value);
    void setPrimitiveValue(const FExpr<FObject>& value) override;
    QString toString() const override { return getStringValue(); }
    QString toExpressionString() const override;

 protected:
    virtual const FEnumTable* getTable() const { return nullptr; }
    /** Strips a quote at each end and compares with regard to case; the default for an unknown text. */
    static unsigned int numberOf(const FEnumTable& table, const QString& text);
};
