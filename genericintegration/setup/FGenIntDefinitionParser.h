#pragma once

#include "host/lodm/FLodmDefinitionParser.h"

class FDefinitionGenInt;

/**
 * Reads and writes the exchange files of integrations. Their object area holds the templates, which become children of
 * the definition and its files, and further objects, which become children, too, and are left to the caller.
 */
class FGenIntDefinitionParser : public FLodmDefinitionParser {
 public:
    /** With the prototype of FDefinitionGenInt when a new definition is to be made. */
    explicit FGenIntDefinitionParser(const FExpr<FDefinitionCustom>& definition = {})
        : FLodmDefinitionParser(definition) {}

 protected:
    /** Other definitions than those of integrations, and an empty text, are left alone. */
    void importObjectsFromString(const QString& text) override;

 private:
    static void takeFiles(FDefinitionGenInt& definition, const FExprBase& current, const FExprBase& last);
};
