// Any text as a line of an input template: it is analysed as by the regular expressions of the tests. Any two texts as
// an edited document: the lines are those of the document, and the line ends of the rest stay.
// The input: names in a line, each after a "|", an empty line, the template; a NUL separates it from the edited one.
#include "fuzz/support/FFuzzCheck.h"
#include "genericintegration/marking/FFoldedNames.h"
#include "genericintegration/marking/FLineEnds.h"
#include "tests/genericintegration/marking/FLiteralTemplateLine.h"

#include <QRegularExpression>
#include <QStringList>

#include <cstddef>
#include <cstdint>

namespace {

/** The expressions take time quadratic in the line. */
constexpr int longestForModel = 1000;

QStringList linesOf(const QString& text) {
    static const QRegularExpression end("\r\n|[\n\r\u2029\uFDD0\uFDD1]");
    return text.split(end);
}

void checkLine(const QString& line, const QStringList& names, const QRegExp& search) {
    const FFoldedNames folded(names);
    for (const auto mode : {FTemplateLine::Mode::Assisted, FTemplateLine::Mode::Plain}) {
        const FTemplateLine analysed(line, folded, mode, search);
        if (line.size() <= longestForModel) {
            FFuzzCheck::same(QString(), FLiteralTemplateLine(line, names, mode, search).difference(analysed),
                             "a line is analysed as by the expressions");
        }
    }
}

void checkEdit(const QString& before, const QString& after) {
    const FTextReplacement change = FLineEnds::change(before, after);
    FFuzzCheck::holds(linesOf(change.appliedTo(before)) == linesOf(after), "the lines are those of the document");
    FFuzzCheck::holds(FLineEnds::change(before, linesOf(before).join(QChar(0x2029))).isEmpty(),
                      "a document that wasn't edited changes nothing");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString input = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const int headEnd = input.indexOf("\n\n");
    const QStringList names = input.left(qMax(headEnd, 0)).split('|');
    const QString body = headEnd < 0 ? input : input.mid(headEnd + 2);
    const QString text = body.section(QChar::Null, 0, 0);
    const QString edited = body.section(QChar::Null, 1, 1);
    for (const QString& line : linesOf(text)) {
        checkLine(line, names, QRegExp(names.first(), Qt::CaseSensitive, QRegExp::FixedString));
    }
    checkEdit(text, edited);
    return 0;
}
