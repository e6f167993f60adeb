// Any text as an expression that an object keeps: what it is bound to is written, bound again and has the same value.
// Binding opens no file; neither does evaluating an expression that can safely be updated without files.
#include "fuzz/support/FFileGuard.h"
#include "fuzz/support/FFuzzCheck.h"
#include "fuzz/support/FFuzzModel.h"
#include "host/core/FExprBase.h"

#include <cstddef>
#include <cstdint>

namespace {

// A model in which names, lists and commands of each kind can be met.
const char* const model = R"(// merix project, format 1
parameter span(12.5)
parameter words("one \"two\"")
parameter twice(2 * span)
parameter list([1, [span, "x"], NULL, true])
genericIntegrationCommandFile in1() {
.setContent("<entry>G|a</entry>")
.setFileName("in1.txt")
}
genericIntegrationDefinition def() {
.addEntry("G|a", 3)
.addEntry("b", "text")
.setFiles([in1])
}
genericIntegrationConfiguration conf() {
.setDefinition(def)
.setEntryValue("G|a", 2 * span)
}
)";

QString valueOf(const FExprBase& expression) {
    FObject* value = expression.getObject();
    return value ? FExprBase(value).toHistoryString() : QString();
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*count*/, char*** /*arguments*/) {
    FFuzzModel::prepare();
    FFuzzCheck::holds(FFuzzModel::restore(model, true) == 0, "the model of this target is read");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const FFileGuard guard;
    FExprBase first;
    if (!first.resolve(QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size)))) {
        return 0;
    }
    const QString text = first.toHistoryString();
    FExprBase second;
    if (!second.resolve(text)) {
        FFuzzCheck::fail(QStringLiteral("the text of an expression can be bound: ") + text);
    }
    FFuzzCheck::same(text, second.toHistoryString(), "an expression that is written and bound is the same");
    FFuzzCheck::holds(first.canSafelyBeUpdated(false) == second.canSafelyBeUpdated(false),
                      "an expression that is written and bound reads the same files");
    if (first.canSafelyBeUpdated(false)) {
        FFuzzCheck::same(valueOf(first), valueOf(second), "an expression that is written and bound has the same value");
    }
    return 0;
}
