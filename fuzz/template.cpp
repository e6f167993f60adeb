// Any text as a template, and any keys: it is written as the slow model of the tests does it.
// The input: rows of the table, "key=text" or "key" for one without an object, an empty line, the template.
#include "fuzz/support/FFuzzCheck.h"
#include "tests/genericintegration/io/FTemplateComparison.h"

#include <QStringList>

#include <cstddef>
#include <cstdint>

namespace {

using FTemplateComparison::Table;

/** The model takes time quadratic in these. */
constexpr int mostRows = 50;
constexpr int longestForModel = 4096;

Table tableOf(const QString& head) {
    Table table;
    const QStringList lines = head.split('\n');
    for (const QString& line : lines.mid(0, mostRows)) {
        const int sign = line.indexOf('=');
        table.insert(line.left(sign), {sign < 0 ? QString() : line.mid(sign + 1), sign >= 0});
    }
    return table;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString input = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const int headEnd = input.indexOf("\n\n");
    const Table table = headEnd < 0 ? Table() : tableOf(input.left(headEnd));
    const QString text = headEnd < 0 ? input : input.mid(headEnd + 2);
    const bool hasModel = text.size() <= longestForModel;
    for (const bool force : {false, true}) {
        const auto written = FTemplateComparison::write(text, table, force);
        if (hasModel) {
            FFuzzCheck::same(QString(), FTemplateComparison::difference(written, text, table, force),
                             "a template is written as the model does it");
        }
    }
    if (hasModel) {
        const QString name = table.isEmpty() ? text.left(3) : table.firstKey();
        FFuzzCheck::same(QString(), FTemplateComparison::differenceOfNames(text, name), "names are the model's");
    }
    return 0;
}
