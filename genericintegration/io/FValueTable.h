#pragma once

#include "genericintegration/io/FTemplateKeys.h"
#include "host/core/FExpr.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <vector>

class FConfiguration;
class FEntry;
class FTemplateOwner;

/**
 * What tags can name: the entries of a configuration, and the templates of its definition. Built once for all files of
 * one export or preview; the objects stay with the configuration and the definition.
 */
class FValueTable {
 public:
    enum class Use { Export, Preview };

    /** In an export a template's key is the word "Exports", a "|" and its file name; in a preview the file name alone.
     */
    FValueTable(const FConfiguration& configuration, const FTemplateOwner& definition, Use use);

    const FTemplateKeys& getKeys() const { return mKeys; }
    /** The text that replaces a tag which the row answers. */
    QString textOf(int row) const;

 private:
    struct Row {
        QString key;
        FExprBase object;
    };
    QString entryText(const FEntry& entry) const;

    Use mUse;
    std::vector<Row> mRows;
    FTemplateKeys mKeys;
};
