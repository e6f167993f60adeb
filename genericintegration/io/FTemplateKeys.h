#pragma once

#include <QString>
#include <QStringView>

#include <unordered_map>

/**
 * Finds the row of the value table for a tag.
 *
 * A key is a path of levels joined by "|", each of which may end in an index: "Wing[0]|span". A tag names it without
 * indices and in any case: empty levels are dropped and each level is cut at its last "[" before the comparison.
 * Case is ignored as in QString::compare(): "ß" isn't "ss".
 */
class FTemplateKeys {
 public:
    static constexpr int notFound = -1;

    /**
     * Adds the next row. Rows are numbered from 0, in the order of the table. A row without an object gets a number,
     * but matches no tag.
     */
    void append(const QString& key, bool holdsObject);

    /**
     * The first row with an object that matches the name of a tag, or notFound. Takes time linear in the length of the
     * name, whatever the number of rows.
     */
    int find(QStringView name) const;

 private:
    // Not noexcept, which makes the standard library store the hash of each key instead of recomputing it.
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(QStringView text) const;
    };
    struct Equal {
        using is_transparent = void;
        bool operator()(QStringView left, QStringView right) const noexcept;
    };

    std::unordered_map<QString, int, Hash, Equal> mRows;
    int mCount = 0;
};
