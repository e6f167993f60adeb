#pragma once

#include "genericintegration/setup/FDefinitionGenInt.h"

/**
 * Stands for the editing of a definition: when it gets the definition, a new software connector is made for each
 * computation that has it. It owns nothing.
 */
class FGenIntEditor : public FClass<FGenIntEditor, FManaged> {
 public:
    static FClassData mClass;

    static FGenIntEditor* create(const QString& name);

    const FExpr<FDefinitionGenInt>& getDefinition() const { return mDefinition; }
    /** Returns this object. The connectors are made by the next update, unless a project is being loaded. */
    FGenIntEditor* setDefinition(const FExpr<FDefinitionGenInt>& definition);

    bool doUpdate() const override;

 private:
    friend class FClass<FGenIntEditor, FManaged>;

    explicit FGenIntEditor(const QString& name = QString());
    static std::vector<std::unique_ptr<FStateField>> fields();
    void makeConnectors() const;

    FExpr<FDefinitionGenInt> mDefinition;
    mutable bool mIsAwaited = false;  //!< the definition was set, and the connectors aren't there yet
};
