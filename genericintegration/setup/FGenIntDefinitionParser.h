#pragma once

#include "host/lodm/FLodmDefinitionParser.h"

class FDefinitionGenInt;

/**
 * Reads and writes the exchange files of integrations. Templates in the object area become
 * files and children of the definition; further objects only become its children.
 */
class FGenIntDefinitionParser : public FLodmDefinitionParser {
 public:
    /** @param definition  the prototype of FDefinitionGenInt makes a new definition */
    explicit FGenIntDefinitionParser(const FExpr<FDefinitionCustom>& definition = {})
        : FLodmDefinitionParser(definition) {}

 protected:
    /** Ignores definitions of other kinds, and an empty text. */
    void importObjectsFromString(const QString& text) override;

 private:
    static void takeFiles(FDefinitionGenInt& definition, const FExprBase& current, const FExprBase& last);
};
