#pragma once

#include <QString>

/** Texts of the reference by documentation key, and what classes have registered of it. */
class FTypeDocu {
 public:
    /** The text of a key, from the translation file of the host; the key itself if it has none. */
    static QString translate(const QString& key, const QString& disambiguation = QString());

    /** Adds a text to a class's documentation. Areas are those of FDocuArea. */
    static void add(const QString& className, const QString& text, int area);
    /** Empty if nothing was added. */
    static QString get(const QString& className, int area);
};
