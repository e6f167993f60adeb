#pragma once

#include <QStringList>
#include <QStringView>

/** The tags of an input template: "<entry>name</entry>". All functions take time linear in the text. */
namespace FTemplateTags {

inline constexpr QStringView openingMarker = u"<entry>";
inline constexpr QStringView closingMarker = u"</entry>";

/** The tag of a name. */
QString tagOf(const QString& name);

/** The name in a text that is one tag, with markers in small letters; empty if it is none, or contains another one. */
QString nameIn(const QString& text);

/**
 * Names of all tags whose markers are spelled in small letters, each once (names that differ in case are different
 * ones), in order of first appearance.
 */
QStringList entryNames(const QString& text);

/** Names of all tags, markers in any case, repeats included, in order of appearance. */
QStringList tagNames(const QString& text);

/** Whether the text holds the tag of this name, ignoring case. */
bool containsTag(const QString& text, const QString& name);

/** The text with each tag of this name, ignoring case, replaced. */
QString replaceTag(const QString& text, const QString& name, const QString& replacement);

/** The text with each tag of the old name, ignoring case, replaced by the tag of the new one. */
QString renameTag(const QString& text, const QString& oldName, const QString& newName);

}  // namespace FTemplateTags
