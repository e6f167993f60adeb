// Any text as a file of zones: it is read, with the same number of columns in each row, or refused with a line.
#include "fuzz/support/FFuzzCheck.h"
#include "host/lodm/FTecplotText.h"

#include <QRegularExpression>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
    // Reading many repetitions takes a second.
    static const QRegularExpression manyRepetitions("\\d{4}\\*");
    if (text.contains(manyRepetitions)) {
        return 0;
    }
    const FTecplotText read = FTecplotText::read(text);
    FFuzzCheck::holds(read.fault.isEmpty() == (read.faultLine == 0), "a fault has a line");
    FFuzzCheck::holds(read.faultLine <= text.count('\n') + 1, "the line of a fault is in the text");
    FFuzzCheck::holds(!read.fault.isEmpty() || !read.zones.isEmpty(), "a valid text has a zone");
    for (const FTecplotZone& zone : read.zones) {
        for (const QVector<double>& row : zone.rows) {
            FFuzzCheck::holds(row.size() <= text.size() && !row.isEmpty(), "a row has a column for each variable");
        }
    }
    return 0;
}
