#pragma once

#include "genericintegration/templates/FTemplateCache.h"
#include "host/core/FExpr.h"

#include <QList>

#include <memory>

class FGenIntFile;

/** What templates and the writer need of the definition that holds the templates. */
class FTemplateOwner {
 public:
    virtual ~FTemplateOwner() = default;

    /** All template files in the order of adding. */
    virtual const QList<FExpr<FGenIntFile>>& getFiles() const = 0;
    /** Number of digits after the decimal point. */
    virtual int getOutputPrecision() const = 0;
    /** Renames an entry, or a file that tags name, in the tags of all templates. */
    virtual void updateCommandFiles(const QString& oldName, const QString& newName) = 0;

    /** The writer's cache; only the writer sets it. */
    std::shared_ptr<const FTemplateCache>& writerCache() const { return mWriterCache; }

 private:
    mutable std::shared_ptr<const FTemplateCache> mWriterCache;
};
