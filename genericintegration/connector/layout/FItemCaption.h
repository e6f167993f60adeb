#pragma once

#include <QString>

/** The texts of an item, made from the path of its file. Paths may have either separator. */
namespace FItemCaption {

constexpr int usualLimit = 30;

/** The part after the last separator. */
QString lastPart(const QString& path);
/** What an icon shows as the type of a file: at most four characters, without the quotes of an expression. */
QString typeText(const QString& name);
/**
 * Replaces the middle of a path that is clearly longer than the limit by "...", or gives its last part alone if that
 * leaves no room for a folder. A name without a folder stays, and so does everything if the limit is negative.
 */
QString shortened(const QString& path, int limit = usualLimit);
/** The name of a new entry for a file: its name without the suffix; "newEntry" if nothing is left. */
QString entryName(const QString& path);

}  // namespace FItemCaption
