#include "host/core/FObjectName.h"

#include <utility>

namespace {

struct FCodePoint {
    uint value;
    int units;
};

FCodePoint codePointAt(QStringView text, int position) {
    const QChar first = text[position];
    if (first.isHighSurrogate() && position + 1 < text.size() && text[position + 1].isLowSurrogate()) {
        return {QChar::surrogateToUcs4(first, text[position + 1]), 2};
    }
    return {first.unicode(), 1};
}

bool isNameStart(uint c) {
    return c == '_' || QChar::isLetter(c);
}

bool isNamePart(uint c) {
    return isNameStart(c) || QChar::isDigit(c);
}

}  // namespace

FReservedWord reservedWord(QStringView word) {
    static constexpr std::pair<QStringView, FReservedWord> words[] = {
        {u"if", FReservedWord::If},     {u"else", FReservedWord::Else}, {u"while", FReservedWord::While},
        {u"for", FReservedWord::For},   {u"true", FReservedWord::True}, {u"false", FReservedWord::False},
        {u"NULL", FReservedWord::Null},
    };
    for (const auto& [text, reserved] : words) {
        if (text == word) {
            return reserved;
        }
    }
    return FReservedWord::None;
}

int nameLength(QStringView text, int from) {
    int end = from;
    while (end < text.size()) {
        const FCodePoint c = codePointAt(text, end);
        if (!(end == from ? isNameStart(c.value) : isNamePart(c.value))) {
            break;
        }
        end += c.units;
    }
    return end - from;
}

QString legalName(const QString& text) {
    QString name;
    name.reserve(text.size() + 1);
    for (int i = 0; i < text.size();) {
        const FCodePoint c = codePointAt(text, i);
        if (isNamePart(c.value)) {
            name.append(text.midRef(i, c.units));
        } else {
            name.append(QLatin1Char('_'));
        }
        i += c.units;
    }
    return name.isEmpty() || FObjectName::isLegal(name) ? name : QLatin1Char('_') + name;
}

bool FObjectName::isLegal(const QString& name) {
    return !name.isEmpty() && canBecomeLegal(name) && reservedWord(name) == FReservedWord::None;
}

QString numberedName(const QString& base, int number) {
    return number == 0 ? base : base + QLatin1String(number < 10 ? "_0" : "_") + QString::number(number);
}

QString uniqueName(const QString& base, const std::function<bool(const QString&)>& taken) {
    int number = 0;
    while (taken(numberedName(base, number))) {
        ++number;
    }
    return numberedName(base, number);
}
