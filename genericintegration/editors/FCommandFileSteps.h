#pragma once

#include "host/core/FExpr.h"

#include <QString>

#include <optional>

class FDefinitionGenInt;
class FEditBuffer;
class FEntryBase;
class FEntryDef;
class QTextCursor;

/** What the user of an editor does with the entries of an input template. Each change is a step of the history. */
class FCommandFileSteps {
 public:
    /** @param buffer  of the editor; both arguments outlive the object */
    FCommandFileSteps(FDefinitionGenInt& definition, FEditBuffer& buffer) : mDefinition(definition), mBuffer(buffer) {}

    /** The entry of a tag; null if there is none. */
    FEntryDef* entryOf(const QString& name) const;

    /**
     * Makes an entry, whose tag replaces what a cursor selects. Its default is a number. Where this is written in
     * another way than the text that it replaces, such as "2500" for "2500.0", the configurations get the text.
     * @param value  of the text; 0 if it isn't a number
     */
    void create(const QString& proposal, double value, const QTextCursor& place);
    /** Replaces what a cursor selects with the tag of a name. */
    void insert(const QString& name, const QTextCursor& place);
    void rename(FEntryDef& entry, const QString& name);
    /** Replaces a tag with the value of its entry. An entry that no template refers to any more goes with it. */
    void remove(FEntryDef* entry, const QTextCursor& tag);
    /** Replaces a tag with that of another name. An entry that no template refers to any more goes with it. */
    void replace(FEntryDef* entry, const QTextCursor& tag, const QString& name);
    /** Deletes an entry; in all templates, its value comes back. */
    void destroy(FEntryDef& entry);

 private:
    /**
     * A name that no other entry in the group of an entry has in any case.
     * @param entry  null for one to be made, outside of groups
     */
    QString freeName(const QString& name, const FEntryDef* entry) const;
    void keepText(const FEntryDef& entry, const QString& text);
    /** What an entry was made of, if a configuration has it in place of the default. */
    std::optional<QString> keptText(const FEntryDef& entry) const;
    void removeFromDefinition(const FExpr<FEntryBase>& entry);
    void replaceTag(const QString& label, FEntryDef* entry, const QTextCursor& tag, const QString& text);

    FDefinitionGenInt& mDefinition;
    FEditBuffer& mBuffer;
};
