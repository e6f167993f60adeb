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
    /** The children of the definition in the order of the text, which declares these names. */
    QList<FManaged*> childrenInOrder(const QStringList& names) const;
    static void takeFiles(FDefinitionGenInt& definition, const QList<FManaged*>& children, const FExprBase& current,
                          const FExprBase& last);
};
