#include "host/core/FEnumBase.h"

#include "host/core/FQuotedText.h"
#include "host/core/FString.h"

#include <QSet>

FClassData FEnumBase::mClass("FEnumBase", &FUnsigned::mClass);

namespace {

QSet<QString>& words() {
    static QSet<QString> all;
    return all;
}

}  // namespace

FEnumTable::FEnumTable(unsigned int defaultValue, const QMap<unsigned int, QString>& texts)
    : mDefaultValue(defaultValue), mTexts(texts) {
    for (const QString& text : texts) {
        words().insert(text);
    }
}

bool FEnumTable::isWord(const QString& word) {
    return words().contains(word);
}

QStringList FEnumTable::getWords() {
    return words().values();
}

QString FEnumBase::getStringValue() const {
    return getTable() ? getTable()->getTexts().value(getValue(), QStringLiteral("[KEY-OUT-OF-RANGE]")) : QString();
}

QStringList FEnumBase::getStringValues() const {
    return getTable() ? QStringList(getTable()->getTexts().values()) : QStringList();
}

bool FEnumBase::setValue(const QString& text) {
    if (getTable()) {
        const QMap<unsigned int, QString>& texts = getTable()->getTexts();
        for (auto row = texts.begin(); row != texts.end(); ++row) {
            if (row.value().compare(text, Qt::CaseInsensitive) == 0) {
                mValue = row.key();
                return true;
            }
        }
    }
    return false;
}

bool FEnumBase::takeValue(const FObject& value) {
    if (const auto* text = objectCast<FString>(&value)) {
        return setValue(text->getValue());
    }
    const FExpr<FUnsigned> number(&value);
    const bool isKnown = number && getTable() && getTable()->getTexts().contains(number->getValue());
    if (isKnown) {
        setValue(number->getValue());
    }
    return isKnown;
}

void FEnumBase::setPrimitiveValue(const FExpr<FObject>& value) {
    FObject* object = value.getObject();
    if (const FObject* given = object ? object->getValueObject() : nullptr) {
        takeValue(*given);
    }
}

QString FEnumBase::toExpressionString() const {
    return quoteText(getStringValue());
}

unsigned int FEnumBase::numberOf(const FEnumTable& table, const QString& text) {
    QString bare = text;
    if (bare.startsWith(QLatin1Char('"'))) {
        bare.remove(0, 1);
    }
    if (bare.endsWith(QLatin1Char('"'))) {
        bare.chop(1);
    }
    return table.getTexts().key(bare, table.getDefaultValue());
}
