// Any bytes as an output file, and any values: numbers and texts must agree with the literal reader of the tests.
// The input: the separators in a line, a line for each value, an empty line, the file; see the functions below.
#include "fuzz/support/FFuzzCheck.h"
#include "genericintegration/io/FValueSearch.h"
#include "host/run/FResultText.h"
#include "host/run/FUtf8.h"
#include "tests/genericintegration/io/FLiteralReader.h"

#include <QStringList>

#include <cstddef>
#include <cstdint>

namespace {

constexpr int mostValues = 20;
/** The literal reader takes quadratic time. */
constexpr int longestForModel = 2000;
constexpr int farthestForModel = 1000;

/**
 * "n" finds numbers, "s" separates at white space; then the index of a regular expression.
 * Arbitrary expressions could take exponential time.
 */
FSeparatorSettings separatorsOf(const QString& line) {
    static const QStringList expressions = {"", ",", "[,;]", "x*", "\\b", "[", "(r)|c", "\\s*,\\s*", "\\d", "k"};
    return {line.contains('n'), line.contains('s'), expressions.value(line.right(1).toInt())};
}

/** line, column, "f" or "l" for an anchor's first or last place, average rows (empty for none), and the anchor. */
FValueDescription valueOf(const QString& line) {
    const QStringList parts = line.split('|');
    FValueDescription value;
    value.name = parts.first();
    value.line = parts.first().toInt();
    value.column = parts.value(1).toInt();
    value.average = !parts.value(3).isEmpty();
    value.averageRows = parts.value(3).toUInt();
    value.anchor = {parts.mid(4).join('|'), parts.value(2) == "f" ? FAnchorOccurrence::First : FAnchorOccurrence::Last};
    return value;
}

std::vector<FValueDescription> valuesOf(const QStringList& lines) {
    std::vector<FValueDescription> values;
    for (const QString& line : lines.mid(0, mostValues)) {
        values.push_back(valueOf(line));
    }
    return values;
}

bool isNear(const FValueDescription& value) {
    return qAbs(qint64{value.line}) <= farthestForModel && value.column <= farthestForModel &&
           value.averageRows <= quint32{farthestForModel};
}

void compare(const FLiteralReader::Found& wanted, const FFoundValue& found, const FResultText& text) {
    FFuzzCheck::same(wanted.text, found.textIn(text), "the text of a value is the model's");
    const bool bothMissing = wanted.number != wanted.number && found.number != found.number;
    FFuzzCheck::holds(bothMissing || wanted.number == found.number, "the number of a value is the model's");
}

void compareWithModel(const QString& content, const std::vector<FValueDescription>& values,
                      const FSeparatorSettings& separators, const FFoundValues& found, const FResultText& text) {
    FFuzzCheck::holds(FLiteralReader::order(content, values) == found.order, "the order of values is the model's");
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (isNear(values[i])) {
            compare(FLiteralReader::find(content, values[i], separators), found.values[i], text);
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray input(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const int headEnd = input.indexOf("\n\n");
    const QStringList head = QString::fromUtf8(input.left(headEnd < 0 ? 0 : headEnd)).split('\n');
    const QByteArray file = headEnd < 0 ? input : input.mid(headEnd + 2);
    const FSeparatorSettings separators = separatorsOf(head.first());
    const std::vector<FValueDescription> values = valuesOf(head.mid(1));

    const FResultText text = FResultText::fromFile(file);
    const FFoundValues found = FValueSearch(values, separators).find(text);
    const QString content = FUtf8::decode(text.text());
    if (content.size() <= longestForModel) {
        FFuzzCheck::same(FLiteralReader::decode(file), content, "a file is decoded as a text stream does");
        compareWithModel(content, values, separators, found, text);
    }
    return 0;
}
