#include "merix/textList.h"

#include "host/core/FObjectList.h"
#include "host/core/FString.h"

FExprBase textList(const std::vector<std::string>& texts) {
    auto* list = new FObjectList(FString::null());
    FExprBase handle(list);
    for (const std::string& text : texts) {
        list->add(FExpr<FObject>(new FString(QString::fromStdString(text))));
    }
    return handle;
}
