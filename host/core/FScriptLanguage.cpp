#include "host/core/FScriptLanguage.h"

#include "host/core/FExprBase.h"
#include "host/core/FStateField.h"

namespace {

/** Without a script layer classes have no commands and texts can't be bound. */
class FNoLanguage : public FScriptLanguage {
 public:
    void addCommandPrototypes(FClassData& data) override { Q_UNUSED(data) }
    void registerCommands(FClassData& data) override { Q_UNUSED(data) }
    std::vector<std::unique_ptr<FStateField>> attributeFields(FClassData& data) override {
        Q_UNUSED(data)
        return {};
    }
    void copyAttributes(FClassData&, FObject&, const FObject&) override {}
    FExprBase resolve(const QString& text, QString* error) override {
        if (error) {
            *error = QStringLiteral("there is no script language to read \"%1\"").arg(text);
        }
        return {};
    }
    void saveObject(const FManaged&, QTextStream&, unsigned int, bool, bool) override {}
    void saveAttributes(const FManaged&, QTextStream&, const std::vector<const FObject*>&, unsigned int,
                        bool) override {}
};

FScriptLanguage*& current() {
    static FNoLanguage none;
    static FScriptLanguage* language = &none;
    return language;
}

}  // namespace

FScriptLanguage* FScriptLanguage::instance() {
    return current();
}

void FScriptLanguage::use(FScriptLanguage* language) {
    current() = language;
}
