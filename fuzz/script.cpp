// Any text as a script: it is read to its end, strictly and with recovery, and its syntax survives being written.
#include "fuzz/support/FFuzzCheck.h"
#include "host/script/FScriptParser.h"
#include "tests/host/script/FSyntaxText.h"

#include <cstddef>
#include <cstdint>

namespace {

QString textOf(const FScript& script) {
    return QString::fromStdString(syntaxText(script));
}

void checkRecovery(const QString& text, const FScript& strict) {
    const FScript whole = parseScript(text, QStringLiteral("s"), {.recovers = true, .isObjectArea = false});
    FFuzzCheck::holds(strict.errors.size() <= 1, "without recovery there is one error at most");
    FFuzzCheck::holds(strict.errors.empty() == whole.errors.empty(), "recovery finds errors where there are any");
    if (strict.errors.empty()) {
        FFuzzCheck::same(textOf(strict), textOf(whole), "recovery changes no good script");
    } else {
        FFuzzCheck::same(strict.errors.front().toString(QString()), whole.errors.front().toString(QString()),
                         "the first error is the same with recovery");
    }
}

/** Brackets that weren't in the text count as levels. */
bool isTooDeep(const FScript& script) {
    return !script.errors.empty() && script.errors.front().message.startsWith(QStringLiteral("nested more than"));
}

void checkWritten(const FScript& script) {
    const QString written = textOf(script);
    const FScript again = parseScript(written, QStringLiteral("s"));
    if (!isTooDeep(again)) {
        FFuzzCheck::same(written, textOf(again), "syntax that is written and read is the same");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const FScript script = parseScript(text, QStringLiteral("s"));
    checkRecovery(text, script);
    if (script.errors.empty()) {
        checkWritten(script);
    }
    parseScript(text, QStringLiteral("s"), {.recovers = true, .isObjectArea = true});
    parseExpression(text);
    return 0;
}
