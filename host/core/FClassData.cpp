#include "host/core/FClassData.h"

#include "host/core/FScriptLanguage.h"
#include "host/core/FStateField.h"

#include <algorithm>
#include <iterator>

struct FClassData::FieldCache {
    std::vector<std::unique_ptr<FStateField>> own;
    std::vector<const FStateField*> all;
};

const QString& FClassData::makeNameText() const {
    mpNameText = new QString(QString::fromLatin1(mName));
    return *mpNameText;
}

const std::vector<const FStateField*>& FClassData::getFields() const {
    if (!mpFieldCache) {
        mpFieldCache = new FieldCache;
        if (mpSuper) {
            mpFieldCache->all = mpSuper->getFields();
        }
        if (mFields) {
            mpFieldCache->own = mFields();
        }
        auto declared = FScriptLanguage::instance()->attributeFields(const_cast<FClassData&>(*this));
        std::move(declared.begin(), declared.end(), std::back_inserter(mpFieldCache->own));
        for (const auto& field : mpFieldCache->own) {
            mpFieldCache->all.push_back(field.get());
        }
    }
    return mpFieldCache->all;
}
