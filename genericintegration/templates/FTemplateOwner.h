#pragma once

#include "host/core/FExpr.h"

#include <QList>

#include <memory>

class FGenIntFile;
class FTagRows;

/** What templates and the writer need of the definition that holds the templates. */
class FTemplateOwner {
 public:
    virtual ~FTemplateOwner() = default;

    /** All template files in the order of adding. */
    virtual const QList<FExpr<FGenIntFile>>& getFiles() const = 0;
    /** Digits behind the point of real numbers that a text stream writes. */
    virtual int getOutputPrecision() const = 0;
    /** An entry, or a file that tags name, has a new name: tags follow. */
    virtual void updateCommandFiles(const QString& oldName, const QString& newName) = 0;

    /** What the writer keeps here from one call to the next; nobody else's. */
    std::shared_ptr<const FTagRows>& tagRows() const { return mTagRows; }

 private:
    mutable std::shared_ptr<const FTagRows> mTagRows;
};
