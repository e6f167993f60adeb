#include "host/script/FCreateCmd.h"

#include "host/core/FObjectManager.h"
#include "host/script/FCmdManager.h"
#include "host/script/FCmdParser.h"
#include "host/script/FCmdTable.h"

FClassData FCreateCmd::mClass("FCreateCmd", &FCmd::mClass);
FClassData FCreateEntityCmd::mClass("FCreateEntityCmd", &FCreateCmd::mClass);

FObject* FCreateCmd::clone() const {
    return getRow() ? new FCreateCmd(*getRow()) : new FCreateCmd;
}

FObject* FCreateEntityCmd::clone() const {
    return getRow() ? new FCreateEntityCmd(*getRow()) : new FCreateEntityCmd;
}

FExprBase FCreateCmd::execute() const {
    if (mResult.isValid()) {
        return mResult;
    }
    FCmdRow::Values values;
    const FCmdRow* row = chooseRow(FCmdManager::instance()->findCreators(getName()), values);
    if (!row) {
        return {};
    }
    prepare();
    values.emplace_back(FNewName{mTargetName, mScope});
    FExprBase result = callRow(*row, nullptr, values);
    if (FCmdParser* parser = FCmdParser::currentParser()) {
        parser->addObject(FExpr<FManaged>(result));
    }
    return result;
}

void FCreateEntityCmd::createScopeAndName() const {
    mScope = FObjectManager::instance()->getWorkingScope();
}
