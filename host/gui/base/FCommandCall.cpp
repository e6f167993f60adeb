#include "host/gui/base/FCommandCall.h"

#include "host/core/FUserStep.h"
#include "host/script/FMemberCmd.h"

QString FCommandCall::labelOf(const FCmdRow& row) {
    const FCmdPresentation& look = row.presentation;
    return !look.menuEntry.isEmpty() ? look.menuEntry : !look.attrName.isEmpty() ? look.attrName : row.name;
}

QString FCommandCall::labelWith(const QString& what, const QString& value) {
    constexpr int longest = 24;
    const QString text = value.simplified();
    return text.isEmpty() ? what
                          : QStringLiteral("%1 to %2")
                                .arg(what, text.size() > longest ? text.left(longest) + QChar(0x2026) : text);
}

FExprBase FCommandCall::execute(const FCmdRow& row, const FExprBase& receiver,
                                const std::vector<FExprBase>& arguments) {
    auto* command = static_cast<FMemberCmd*>(row.commandClass->mpNull->clone());
    const FExprBase keep(command);
    command->setReceiver(receiver);
    return execute(*command, arguments, labelOf(row));
}

FExprBase FCommandCall::execute(const FMemberCmd& command, const std::vector<FExprBase>& arguments,
                                const QString& label) {
    auto* call = static_cast<FMemberCmd*>(command.clone());
    const FExprBase keep(call);
    call->setReceiver(command.getReceiver());
    call->setArguments(arguments);
    const FUserStep step(label);
    return call->getValue();
}
