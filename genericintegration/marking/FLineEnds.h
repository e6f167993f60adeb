#pragma once

#include "genericintegration/marking/FTextReplacement.h"

#include <vector>

/**
 * Takes over what was edited in a document of lines, which doesn't hold how the lines of its text ended.
 *
 * Lines end as a QTextDocument ends them: at LF, CR, CR LF, U+2029, U+FDD0 and U+FDD1.
 */
namespace FLineEnds {

/**
 * The smallest change that gives a text the lines of a document. What both have in common at the start and at the end
 * keeps its line ends. So does the changed part, if it has as many lines as before; else its lines get the ends that
 * most lines of the text have, LF if there are none. No surrogate pair is cut. Takes time linear in the text.
 *
 * @param document  its lines, with any of the line ends above: QTextDocument::toRawText(), but not toPlainText(), which
 *                  replaces other characters
 */
FTextReplacement change(const QString& text, const QString& document);

/** Most changes of lines that are given one by one. */
constexpr std::size_t mostChanges = 50'000;

/**
 * The changes that give a document the lines of a text, with positions of the document as it is now, in ascending
 * order: a small one for each line that differs, if the number of lines stays and not too many differ; else one for all
 * of them. Takes time
 * linear in the text, and little if most of it is the same with the same line ends.
 *
 * @param document  its lines, with any of the line ends above
 */
std::vector<FTextReplacement> changesOfDocument(const QString& document, const QString& text);

}  // namespace FLineEnds
