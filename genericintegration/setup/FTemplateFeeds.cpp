#include "genericintegration/setup/FTemplateFeeds.h"

#include "genericintegration/io/FTemplateKeys.h"
#include "genericintegration/io/FValueTable.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/templates/FTemplateScanner.h"
#include "host/design/FEntry.h"
#include "host/run/FExternComputation.h"

namespace {

std::vector<QString> namesOf(const QString& text) {
    std::vector<QString> names;
    QSet<QStringView> seen;
    FTemplateScanner scanner(text);
    while (const auto tag = scanner.next()) {
        const int count = seen.size();
        seen.insert(tag->name);
        if (seen.size() > count) {
            names.push_back(tag->name.toString());
        }
    }
    return names;
}

/** What some objects depend on, each once and with themselves. */
class FSuppliers {
 public:
    void add(const FObject* object) {
        if (object && !mSeen.contains(object)) {
            mSeen.insert(object);
            mObjects.push_back(object);
        }
    }
    // What a computation depends on belongs to its own set-up.
    std::vector<const FObject*> collect() {
        for (std::size_t next = 0; next < mObjects.size(); ++next) {
            if (!dynamic_cast<const FExternComputation*>(mObjects[next])) {
                for (const FObject* supplier : mObjects[next]->getSuppliers()) {
                    add(supplier);
                }
            }
        }
        return mObjects;
    }

 private:
    QSet<const FObject*> mSeen;
    std::vector<const FObject*> mObjects;
};

}  // namespace

bool FTemplateFeeds::readNext(const FDefinitionGenInt& definition) {
    for (const FExpr<FGenIntFile>& file : definition.getCommandFiles()) {
        if (file && !namesIn(*file.ptr())) {
            const QString text = file->getPlainContent();
            mNames.insert(file.ptr(), {text, namesOf(text)});
            return true;
        }
    }
    dropOthers(definition);
    return false;
}

void FTemplateFeeds::dropOthers(const FDefinitionGenInt& definition) {
    if (mNames.size() == definition.getCommandFiles().size()) {
        return;
    }
    QHash<const FGenIntFile*, Names> kept;
    for (const FExpr<FGenIntFile>& file : definition.getCommandFiles()) {
        if (file) {
            kept.insert(file.ptr(), mNames.take(file.ptr()));
        }
    }
    mNames = kept;
}

const FTemplateFeeds::Names* FTemplateFeeds::namesIn(const FGenIntFile& file) const {
    const auto known = mNames.constFind(&file);
    const bool isSame = known != mNames.constEnd() && known->text.constData() == file.getPlainContent().constData();
    return isSame ? &*known : nullptr;
}

std::vector<FTemplateFeeds::Feed> FTemplateFeeds::find(const FConfiguration& configuration,
                                                       const FDefinitionGenInt& definition,
                                                       const QSet<const FObject*>& entries) const {
    std::vector<Feed> feeds;
    const FValueTable table(configuration, definition, FValueTable::Use::Export);
    for (const FExpr<FGenIntFile>& file : definition.getCommandFiles()) {
        const Names* known = file ? namesIn(*file.ptr()) : nullptr;
        FSuppliers suppliers;
        for (const QString& name : known ? known->names : std::vector<QString>()) {
            const int row = table.getKeys().find(name);
            suppliers.add(row == FTemplateKeys::notFound ? nullptr : table.entryOf(row));
        }
        for (const FObject* supplier : suppliers.collect()) {
            if (entries.contains(supplier)) {
                feeds.push_back({supplier, file.ptr()});
            }
        }
    }
    return feeds;
}
