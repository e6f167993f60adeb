#include "host/script/FDeclarer.h"

#include "host/core/FLogMsg.h"
#include "host/core/FManaged.h"
#include "host/script/FCmdManager.h"
#include "host/script/FCreateCmd.h"

FDeclarer::Outcome FDeclarer::create(const FSyntaxDeclaration& declaration, FExprBase& object) {
    const FSyntaxExpr& call = declaration.creator;
    const auto rows = FCmdManager::instance()->findCreators(call.name);
    if (rows.empty()) {
        mError = {call.place, FCmdManager::instance()->unknownCreator(call.name)};
        return Outcome::Failed;
    }
    FBinder binder(mNames, mFile);
    const bool isEntity = rows.front()->kind == FCmdRow::Kind::CreateEntity;
    auto* command = isEntity ? new FCreateEntityCmd(*rows.front()) : new FCreateCmd(*rows.front());
    const FExprBase keep(command);
    command->setArguments(binder.bindArguments(rows, call, mUse));
    if (binder.getError()) {
        mError = *binder.getError();
        return Outcome::Failed;
    }
    command->setPlace(mFile, call.place);
    command->setTargetName(declaration.name);
    object = command->getValue();
    const auto* made = dynamic_cast<const FManaged*>(object.getObject());
    if (!made) {
        return Outcome::Null;
    }
    mNames.setDeclared(declaration.name, object);
    if (made->getName() != declaration.name) {
        FLogMsg::warning(declaration.namePlace.toString(mFile),
                         QStringLiteral("the name \"%1\" is taken; the new object is \"%2\"")
                             .arg(declaration.name, made->getName()));
    }
    return Outcome::Done;
}

FDeclarer::Outcome FDeclarer::command(const FExprBase& object, const FSyntaxBlockLine& line) {
    FBinder binder(mNames, mFile);
    FExprBase receiver = object;
    for (const FSyntaxExpr& call : line) {
        receiver = binder.getError() ? receiver : binder.bindMember(receiver, call, mUse);
    }
    return carryOut(binder, receiver);
}

FDeclarer::Outcome FDeclarer::command(const FSyntaxExpr& chain) {
    FBinder binder(mNames, mFile);
    const FExprBase bound = binder.bind(chain, mUse);
    return carryOut(binder, bound);
}

FDeclarer::Outcome FDeclarer::carryOut(const FBinder& binder, const FExprBase& command) {
    if (binder.getError()) {
        mError = *binder.getError();
        return Outcome::Failed;
    }
    command.getObject();
    const auto* last = dynamic_cast<const FCmd*>(command.getStored());
    return last && last->hasWarned() ? Outcome::Null : Outcome::Done;
}
