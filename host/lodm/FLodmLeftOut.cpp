#include "host/lodm/FLodmLeftOut.h"

#include "host/core/FLogMsg.h"
#include "host/core/FObjectManager.h"
#include "host/design/FConfiguration.h"
#include "host/design/FDefinition.h"
#include "host/design/FEntryDef.h"
#include "host/lodm/FLodmDefaultValue.h"
#include "host/run/FExternComputation.h"
#include "host/script/FScriptParser.h"

#include <QTextStream>

namespace {

QStringList namesIn(const FExprBase& value) {
    const FObject* object = value.getStored();
    const bool isScript = object && FLodmDefaultValue::kindOf(*object) == FLodmEntry::Default::Script;
    QStringList names = isScript ? FLodmDefaultValue::namesIn(value.toHistoryString()) : QStringList();
    names.removeDuplicates();
    return names;
}

class LeftOut {
 public:
    LeftOut(const FDefinition& definition, const QSet<FExpr<FManaged>>& inFile)
        : mDefinition(definition), mInFile(inFile) {}
    ~LeftOut() {
        if (mCount > mostErrors) {
            FLogMsg::warning(mDefinition.getName(),
                             QStringLiteral("%1 more objects aren't saved along").arg(mCount - mostErrors));
        }
    }
    LeftOut(const LeftOut&) = delete;
    LeftOut& operator=(const LeftOut&) = delete;

    /** @param owner  what the value belongs to, for the message */
    void check(const FManaged& owner, const QString& valueName, const QStringList& names, const QString& consequence) {
        for (const QString& name : names) {
            const FManaged* object = FObjectManager::instance()->find(name);
            const bool isLeftOut = object && object != &mDefinition && !mInFile.contains(FExpr<FManaged>(object));
            if (isLeftOut && ++mCount <= mostErrors) {
                FLogMsg::warning(owner.getName(),
                                 QStringLiteral("%1 names \"%2\", which isn't saved along").arg(valueName, name),
                                 QStringLiteral("Where no object has this name, ") + consequence);
            }
        }
    }

 private:
    const FDefinition& mDefinition;
    const QSet<FExpr<FManaged>>& mInFile;
    int mCount = 0;
};

void checkValues(const FConfiguration& configuration, LeftOut& leftOut) {
    for (const FExpr<FEntryBase>& handle : configuration.getEntryMap()) {
        const auto* entry = static_cast<const FEntry*>(handle.ptr());
        if (!entry->hasDefaultValue()) {
            leftOut.check(configuration, QStringLiteral("the value of entry \"%1\"").arg(entry->getFullName()),
                          namesIn(entry->getValue()), QStringLiteral("the entry keeps its default when it is read"));
        }
    }
}

/** The attributes of an object, as its saved text has them. */
void checkAttributes(const FManaged& object, LeftOut& leftOut) {
    QString text;
    QTextStream stream(&text);
    object.saveScopeManner(stream, 0, false, false);
    stream.flush();
    const FScript script = parseScript(text, object.getName());
    const auto* declaration =
        script.statements.empty() ? nullptr : std::get_if<FSyntaxDeclaration>(&script.statements.front().content);
    for (const FSyntaxBlockLine& line : declaration ? declaration->block : std::vector<FSyntaxBlockLine>()) {
        for (const FSyntaxExpr& call : line) {
            QStringList names = call.getNames();
            names.removeDuplicates();
            leftOut.check(object, call.name, names, QStringLiteral("that part of it is read as NULL, or left out"));
        }
    }
}

}  // namespace

void warnOfLeftOut(const FDefinition& definition, const QSet<FExpr<FManaged>>& saved,
                   const QSet<FExpr<FManaged>>& inFile) {
    LeftOut leftOut(definition, inFile);
    for (const FExpr<FEntryBase>& handle : definition.getEntryMap()) {
        const auto* entry = static_cast<const FEntryDef*>(handle.ptr());
        leftOut.check(definition, QStringLiteral("the default of entry \"%1\"").arg(entry->getFullName()),
                      namesIn(entry->getDefaultValue()), QStringLiteral("the entry is read without a default"));
    }
    for (const FExpr<FManaged>& object : saved) {
        if (const auto* configuration = dynamic_cast<const FConfiguration*>(object.ptr())) {
            checkValues(*configuration, leftOut);
        } else if (const auto* computation = dynamic_cast<const FExternComputation*>(object.ptr())) {
            leftOut.check(*computation, QStringLiteral("its design"), namesIn(computation->getDesign()),
                          QStringLiteral("it has no design when it is read"));
        } else if (object) {
            checkAttributes(*object.ptr(), leftOut);
        }
    }
}
