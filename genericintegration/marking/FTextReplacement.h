#pragma once

#include <QString>

/** A part of a text, and what replaces it. */
struct FTextReplacement {
    int position = 0;  //!< in UTF-16 units
    int removed = 0;   //!< length of the part that is replaced
    QString inserted{};

    bool isEmpty() const { return removed == 0 && inserted.isEmpty(); }
    QString appliedTo(const QString& text) const {
        return text.leftRef(position) + inserted + text.midRef(position + removed);
    }
};
