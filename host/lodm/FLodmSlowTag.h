#pragma once

#include <QString>

#include <optional>

/** A tag that would take Qt's XML reader a time that grows with the square of its length. */
struct FLodmSlowTag {
    int place;       //!< index of its start in the text
    QString reason;  //!< why the file is refused, for the user

    /**
     * Finds the first one: a document type declaration, or a tag with more attributes than any known tag has. Takes
     * time linear in the length of the text, which needn't be well-formed.
     */
    static std::optional<FLodmSlowTag> find(const QString& xml);
};
