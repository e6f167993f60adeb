#pragma once

#include <QString>
#include <QStringView>

#include <unordered_map>

/**
 * Finds the row of the value table that answers a tag.
 *
 * A key is a path of levels joined by "|", each of which may end in an index: "Wing[0]|span". A tag names it without
 * indices and ignoring case: empty levels are dropped and each level is cut at its last "[" before the comparison.
 * A case is ignored as QString::compare() does it: "ß" isn't "ss".
 */
class FTemplateKeys {
 public:
    static constexpr int notFound = -1;

    /**
     * Adds the next row; rows count from 0 and come in the order of the table. A row without an object counts, but
     * answers no tag.
     */
    void append(const QString& key, bool holdsObject);

    /**
     * The first row with an object that answers the name of a tag, or notFound. Linear in the length of the name,
     * whatever the number of rows.
     */
    int find(QStringView name) const;

 private:
    // Not noexcept: then the library keeps the hash of each key instead of computing it again and again.
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
