#pragma once

#include <QHash>
#include <QSet>
#include <QString>

#include <vector>

class FConfiguration;
class FDefinitionGenInt;
class FGenIntFile;
class FObject;

/**
 * Finds which entries feed which input templates: those that tags name, and those that the values of these depend on.
 * Keeps what the tags of each template name, so that only templates with another text are read again.
 */
class FTemplateFeeds {
 public:
    struct Feed {
        const FObject* entry;
        const FGenIntFile* file;
    };

    /** Reads the next template that isn't known yet, in time linear in its text; false if there is none. */
    bool readNext(const FDefinitionGenInt& definition);
    /**
     * For each template that `readNext` knows, those of the given entries that feed it. Evaluates nothing. The time is
     * linear in the number of names and in what the values depend on.
     */
    std::vector<Feed> find(const FConfiguration& configuration, const FDefinitionGenInt& definition,
                           const QSet<const FObject*>& entries) const;

 private:
    struct Names {
        QString text;  // shared with the template as long as it has this text
        std::vector<QString> names;
    };
    /** Null for a template with another text. */
    const Names* namesIn(const FGenIntFile& file) const;
    /** Forgets templates that the definition doesn't have. */
    void dropOthers(const FDefinitionGenInt& definition);

    QHash<const FGenIntFile*, Names> mNames;
};
