#include "host/core/FScriptLanguage.h"
#include "host/script/FBinder.h"
#include "host/script/FCmdInput.h"
#include "host/script/FCmdManager.h"
#include "host/script/FCoreCommands.h"
#include "host/script/FObjectSaver.h"
#include "host/script/FScriptParser.h"

namespace {

/** The script layer as the core sees it. */
class FCmdLanguage : public FScriptLanguage {
 public:
    void addCommandPrototypes(FClassData& data) override { FCmdManager::instance()->addTable(data); }
    void registerCommands(FClassData& data) override { FCmdManager::instance()->registerTable(data); }

    std::vector<std::unique_ptr<FStateField>> attributeFields(FClassData& data) override {
        std::vector<std::unique_ptr<FStateField>> fields;
        forEachPlain(data, [&fields](const FCmdRow& row) { fields.push_back(row.makeField()); });
        return fields;
    }

    void copyAttributes(FClassData& data, FObject& to, const FObject& from) override {
        forEachPlain(data, [&](const FCmdRow& row) {
            if (row.isCopied) {
                row.copy(to, from);
            }
        });
    }

    FExprBase resolve(const QString& text, QString* error) override {
        const FParsedExpression parsed = parseExpression(text);
        if (parsed.error) {
            return fail(*parsed.error, error);
        }
        const FCmdInput* input = FCmdInput::current();
        const FScriptNames noNames;
        FBinder binder(input ? input->getNames() : noNames, QString());
        FExprBase bound = binder.bind(parsed.expression, FBinder::Use::Kept);
        return binder.getError() ? fail(*binder.getError(), error) : bound;
    }

    void saveObject(const FManaged& object, QTextStream& stream, unsigned int indent, bool inScope,
                    bool flag) override {
        FObjectSaver(stream).save(object, indent, inScope, flag);
    }

    void saveAttributes(const FManaged& object, QTextStream& stream, const std::vector<const FObject*>& attributes,
                        unsigned int indent, bool flag) override {
        FObjectSaver(stream).saveAttributes(object, attributes, indent, flag);
    }

 private:
    /** Acts on each plain attribute of the class itself. */
    template <class Act>
    static void forEachPlain(FClassData& data, Act act) {
        FCmdManager::instance()->addTable(data);
        const FCmdTable* table = FCmdManager::instance()->tableOf(data);
        if (!table) {
            return;
        }
        for (const auto& row : table->getRows()) {
            if (row->makeField) {
                act(*row);
            }
        }
    }

    static FExprBase fail(const FSyntaxError& reason, QString* error) {
        if (error) {
            *error = reason.toString(QString());
        }
        return {};
    }
};

/** Puts the language and the commands of the core's classes in place while the library is loaded. */
struct Registration {
    Registration() {
        static FCmdLanguage language;
        FScriptLanguage::use(&language);
        registerCoreCommands();
    }
};
const Registration registration;

}  // namespace
