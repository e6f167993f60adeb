#include "genericintegration/marking/FColumnHeading.h"

#include "genericintegration/marking/FPointedNumber.h"
#include "genericintegration/marking/FResultSample.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr qint64 mostRows = 10000;

/** The character that separates a number from its neighbours; null if there is none. */
QChar delimiterBeside(const FPointedNumber& number) {
    const QString before = number.lineText().left(number.start()).trimmed();
    const QString behind = number.lineText().mid(number.start() + number.length()).trimmed();
    const QString beside = before.isEmpty() ? behind.left(1) : before.right(1);
    return !beside.isEmpty() && QStringLiteral(",;|").contains(beside) ? beside[0] : QChar();
}

}  // namespace

FColumnHeading::FColumnHeading(const FResultSample& sample, const FPointedNumber& number)
    : mSample(sample), mNumber(number), mDelimiter(delimiterBeside(number)) {}

// A second line of headings has units.
QString FColumnHeading::onTop() const {
    QString heading;
    const QString& row = mNumber.lineText();
    const int column = row.leftRef(mNumber.start()).count(mDelimiter);
    const int columns = row.count(mDelimiter);
    const qint64 end = mDelimiter.isNull() ? mNumber.line() : std::max<qint64>(mNumber.line() - mostRows, 0);
    for (qint64 line = mNumber.line() - 1; line >= end; --line) {
        const QString text = mSample.lineRead(line);
        if (text.count(mDelimiter) != columns) {
            break;
        }
        const QString part = text.section(mDelimiter, column, column).remove(u'"').trimmed();
        heading = !part.isEmpty() && part[0].isLetter() ? part : heading;
    }
    return heading;
}

QString FColumnHeading::inLine(qint64 line) const {
    static const QRegularExpression between(QStringLiteral("\\S+(?: \\S+)*"));
    QString heading;
    for (auto found = between.globalMatch(mSample.lineRead(line)); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        const bool isAbove =
            match.capturedStart() < mNumber.start() + mNumber.length() && match.capturedEnd() > mNumber.start();
        if (isAbove && !heading.isEmpty()) {
            return {};
        }
        heading = isAbove ? match.captured() : heading;
    }
    return heading;
}
