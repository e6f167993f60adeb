#pragma once

#include "host/core/FStateField.h"
#include "host/design/FFeatureDefinitionBase.h"

/** Names one of the entities that a feature definition makes. */
class MERIX_EXPORT FFeatureMember : public FClass<FFeatureMember, FEntity> {
 public:
    static FClassData mClass;

    static FFeatureMember* create(const QString& name);

    const FExpr<FFeatureDefinitionBase>& getFeature() const { return mFeature; }
    /** Refused, with a message, if the feature depends on this object. */
    void setFeature(const FExpr<FFeatureDefinitionBase>& feature);
    int getIndex() const { return mIndex; }
    /** The entity at the index among those of the feature; null if there is none. */
    FEntity* getEntity() const;

 protected:
    explicit FFeatureMember(const QString& name = QString()) : FClass(name) {}
    void letGo() override;

 private:
    friend class FClass<FFeatureMember, FEntity>;

    static void commands(FCmdTable& table);
    static std::vector<std::unique_ptr<FStateField>> fields();

    FExpr<FFeatureDefinitionBase> mFeature;
    int mIndex = 0;
};
