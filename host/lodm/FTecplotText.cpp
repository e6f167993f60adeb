#include "host/lodm/FTecplotText.h"

#include "host/lodm/FTecplotZoneHeader.h"

namespace {

/** Reads a file from its start to its end, or to its first fault. */
class FTecplotReader {
 public:
    explicit FTecplotReader(const QString& text) : mTokens(text) {}

    FTecplotText read() {
        while (mResult.fault.isEmpty() && current().kind != Kind::End) {
            readRecord();
        }
        if (mResult.fault.isEmpty() && mResult.zones.isEmpty()) {
            fail(QStringLiteral("there is no zone"));
        }
        return mResult;
    }

 private:
    using Kind = FTecplotToken::Kind;

    const FTecplotToken& current() const { return mTokens.current(); }

    void fail(const QString& fault, int line = 0) {
        mResult.fault = fault;
        mResult.faultLine = line > 0 ? line : current().line;
    }

    void readRecord() {
        const FTecplotToken token = current();
        if (FTecplotNumber::of(token)) {
            readData({});
            return;
        }
        mTokens.advance();
        if (token.is(u"TITLE")) {
            mResult.title = assigned().text.toString();
        } else if (token.is(u"VARIABLES")) {
            readVariables();
        } else if (token.is(u"ZONE")) {
            readZone();
        } else if (token.is(u"DATASETAUXDATA") || token.is(u"VARAUXDATA")) {
            mTokens.advance();
            assigned();
        } else if (token.is(u"FILETYPE") && assigned().is(u"FULL")) {
            return;
        } else {
            fail(QStringLiteral("\"%1\" isn't supported here").arg(token.text), token.line);
        }
    }

    /** The value after an equals sign. */
    FTecplotToken assigned() {
        if (current().kind != Kind::Equals) {
            fail(QStringLiteral("a \"=\" is missing"));
            return {};
        }
        mTokens.advance();
        const FTecplotToken value = current();
        mTokens.advance();
        return value;
    }

    void readVariables() {
        if (current().kind != Kind::Equals) {
            fail(QStringLiteral("a \"=\" is missing"));
            return;
        }
        mTokens.advance();
        mResult.variables.clear();
        while ((current().kind == Kind::Text || current().kind == Kind::Word) && !startsRecord()) {
            mResult.variables.append(current().text.toString());
            mTokens.advance();
        }
    }

    bool startsRecord() const {
        for (const QStringView word :
             {u"TITLE", u"ZONE", u"FILETYPE", u"DATASETAUXDATA", u"VARAUXDATA", u"GEOMETRY", u"TEXT"}) {
            if (current().is(word)) {
                return true;
            }
        }
        return FTecplotNumber::of(current()).has_value();
    }

    void readZone() {
        FTecplotZoneHeader header;
        while (current().kind == Kind::Word && !startsRecord() && mResult.fault.isEmpty()) {
            const FTecplotToken key = current();
            mTokens.advance();
            if (key.is(u"AUXDATA")) {
                mTokens.advance();
                assigned();
                continue;
            }
            const FTecplotToken value = assigned();
            if (const QString fault = header.set(key, value); mResult.fault.isEmpty() && !fault.isEmpty()) {
                fail(fault, key.line);
            }
        }
        if (mResult.fault.isEmpty()) {
            readData(header);
        }
    }

    void readData(const FTecplotZoneHeader& header) {
        const int variables = mResult.variables.size();
        const qint64 points = header.points();
        if (variables == 0) {
            fail(QStringLiteral("the zone comes before the names of the variables"));
            return;
        }
        if (points < 0 && header.isBlock) {
            fail(QStringLiteral("the zone has numbers by variable, but doesn't tell how many points it has"));
            return;
        }
        const qint64 left = FTecplotText::mostNumbers - mNumbers;
        if (points > left / variables) {
            fail(QStringLiteral("there are more than %1 numbers").arg(FTecplotText::mostNumbers));
            return;
        }
        const QVector<double> numbers = readNumbers(points < 0 ? left : points * variables, points >= 0);
        if (mResult.fault.isEmpty() && numbers.size() % variables != 0) {
            fail(QStringLiteral("the last point of the zone has %1 of %2 numbers")
                     .arg(numbers.size() % variables)
                     .arg(variables));
        }
        if (mResult.fault.isEmpty()) {
            append(header, numbers);
            passElements(header);
        }
    }

    QVector<double> readNumbers(qint64 count, bool areAllWanted) {
        QVector<double> numbers;
        std::optional<FTecplotNumber> number;
        while (numbers.size() < count && (number = FTecplotNumber::of(current()))) {
            if (number->count > count - numbers.size()) {
                fail(QStringLiteral("the zone has too many numbers"));
                return {};
            }
            numbers.insert(numbers.size(), static_cast<int>(number->count), number->value);
            mTokens.advance();
        }
        if (areAllWanted && numbers.size() < count) {
            fail(QStringLiteral("the zone has %1 of %2 numbers").arg(numbers.size()).arg(count));
        }
        mNumbers += numbers.size();
        return numbers;
    }

    void append(const FTecplotZoneHeader& header, const QVector<double>& numbers) {
        const int variables = mResult.variables.size();
        const int points = numbers.size() / variables;
        FTecplotZone zone{header.title, {}};
        zone.rows.reserve(points);
        for (int point = 0; point < points; ++point) {
            QVector<double> row(variables);
            for (int variable = 0; variable < variables; ++variable) {
                row[variable] = numbers[header.isBlock ? variable * points + point : point * variables + variable];
            }
            zone.rows.append(row);
        }
        mResult.zones.append(zone);
    }

    void passElements(const FTecplotZoneHeader& header) {
        for (qint64 left = header.elementNumbers(); left > 0; --left) {
            if (!FTecplotNumber::of(current())) {
                fail(QStringLiteral("%1 numbers of nodes are missing in the elements of the zone").arg(left));
                return;
            }
            mTokens.advance();
        }
    }

    FTecplotTokens mTokens;
    FTecplotText mResult;
    qint64 mNumbers = 0;  //!< of all zones so far
};

}  // namespace

FTecplotText FTecplotText::read(const QString& text) {
    return FTecplotReader(text).read();
}
