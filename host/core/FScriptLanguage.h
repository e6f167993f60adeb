#pragma once

#include <QString>

#include <memory>
#include <vector>

class FClassData;
class FExprBase;
class FManaged;
class FObject;
class FStateField;
class QTextStream;

/** What the core needs of the script layer above it, which registers its one object while it is loaded. */
class FScriptLanguage {
 public:
    static FScriptLanguage* instance();
    static void use(FScriptLanguage* language);

    virtual ~FScriptLanguage() = default;

    /** Fills the class's command table and makes the prototypes of its commands. */
    virtual void addCommandPrototypes(FClassData& data) = 0;
    /** Makes the class's commands known to the command manager. */
    virtual void registerCommands(FClassData& data) = 0;
    /** The raw fields of the attributes that the class declares in its command table. */
    virtual std::vector<std::unique_ptr<FStateField>> attributeFields(FClassData& data) = 0;
    /** Takes over those of these attributes that copies take over. */
    virtual void copyAttributes(FClassData& data, FObject& to, const FObject& from) = 0;
    /** Binds an expression's text; the result is empty if it can't be bound, and `error` tells why. */
    virtual FExprBase resolve(const QString& text, QString* error) = 0;
    /** Writes an object as script text, and a line for each of its attributes. */
    virtual void saveObject(const FManaged& object, QTextStream& stream, unsigned int indent, bool inScope,
                            bool flag) = 0;
    virtual void saveAttributes(const FManaged& object, QTextStream& stream,
                                const std::vector<const FObject*>& attributes, unsigned int indent, bool flag) = 0;
};
