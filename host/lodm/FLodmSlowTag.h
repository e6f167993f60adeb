#pragma once

#include <QString>

#include <optional>

/** What would keep Qt's XML reader busy for a time that grows with the square of its length. */
struct FLodmSlowTag {
    int place;       //!< index of its begin in the text
    QString reason;  //!< why it isn't read, for the user

    /**
     * The first one: a document type declaration, or a tag with more attributes than any has. Linear in the length of
     * the text, which needn't be well-formed.
     */
    static std::optional<FLodmSlowTag> find(const QString& xml);
};
