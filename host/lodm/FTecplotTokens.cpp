#include "host/lodm/FTecplotTokens.h"

#include <QString>

#include <algorithm>

namespace {

bool endsWord(QChar c) {
    return c.isSpace() || c == u',' || c == u'=' || c == u'"' || c == u'\'' || c == u'(' || c == u'#';
}

std::optional<double> numberIn(QStringView text) {
    QString number = text.toString();
    const auto letter = std::find_if(number.begin(), number.end(), [](QChar c) { return c == u'd' || c == u'D'; });
    if (letter != number.end()) {
        *letter = u'e';
    }
    bool isNumber = false;
    const double value = number.toDouble(&isNumber);
    return isNumber ? std::optional(value) : std::nullopt;
}

}  // namespace

std::optional<FTecplotNumber> FTecplotNumber::of(const FTecplotToken& token) {
    if (token.kind != FTecplotToken::Kind::Word) {
        return {};
    }
    const qsizetype star = token.text.indexOf(u'*');
    bool isCount = true;
    const qint64 count = star < 0 ? 1 : token.text.left(star).toString().toLongLong(&isCount);
    const std::optional<double> value = numberIn(token.text.mid(star + 1));
    return value && isCount && count > 0 ? std::optional(FTecplotNumber{*value, count}) : std::nullopt;
}

void FTecplotTokens::advance() {
    using Kind = FTecplotToken::Kind;
    skipBlanks();
    mCurrent = {Kind::End, {}, mLine};
    if (mPlace == mText.size()) {
        return;
    }
    const QChar first = mText[mPlace];
    if (first == u'"' || first == u'\'') {
        takeUpTo(first, Kind::Text);
    } else if (first == u'(') {
        takeUpTo(u')', Kind::List);
    } else if (first == u'=') {
        mCurrent.kind = Kind::Equals;
        mCurrent.text = mText.mid(mPlace++, 1);
    } else {
        const auto end = std::find_if(mText.begin() + mPlace, mText.end(), endsWord);
        const qsizetype length = end - mText.begin() - mPlace;
        mCurrent.kind = Kind::Word;
        mCurrent.text = mText.mid(mPlace, length);
        mPlace += length;
    }
}

void FTecplotTokens::skipBlanks() {
    bool isComment = false;
    for (; mPlace < mText.size(); ++mPlace) {
        const QChar c = mText[mPlace];
        isComment = c != u'\n' && (isComment || c == u'#');
        if (!isComment && !c.isSpace() && c != u',') {
            return;
        }
        mLine += c == u'\n' ? 1 : 0;
    }
}

// A text or list without its end goes to the end of the line.
void FTecplotTokens::takeUpTo(QChar end, FTecplotToken::Kind kind) {
    ++mPlace;
    const auto found =
        std::find_if(mText.begin() + mPlace, mText.end(), [end](QChar c) { return c == end || c == u'\n'; });
    const qsizetype length = found - mText.begin() - mPlace;
    mCurrent.kind = kind;
    mCurrent.text = mText.mid(mPlace, length);
    mPlace += length + (found != mText.end() && *found == end ? 1 : 0);
}
