#include "fuzz/support/FFuzzCheck.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

void FFuzzCheck::fail(const QString& message) {
    std::fprintf(stderr, "\nBroken: %s\n", message.toUtf8().constData());
    std::abort();
}

void FFuzzCheck::same(const QString& expected, const QString& found, const char* promise) {
    if (expected == found) {
        return;
    }
    const auto place = std::mismatch(expected.begin(), expected.end(), found.begin(), found.end()).first;
    const int line = static_cast<int>(std::count(expected.begin(), place, '\n'));
    fail(QStringLiteral("%1; line %2\nexpected  %3\nfound     %4")
             .arg(QString::fromUtf8(promise))
             .arg(line + 1)
             .arg(expected.section('\n', line, line), found.section('\n', line, line)));
}
