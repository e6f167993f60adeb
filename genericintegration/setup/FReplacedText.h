#pragma once

#include <QString>

class FObject;

/** Texts of input files that entries were made of. */
namespace FReplacedText {

/**
 * Whether an entry with that default may have been made of the text: the default is a number, which the text spells in
 * its own way, or 0 for a word.
 */
bool standsFor(const QString& text, const FObject* standard);

}  // namespace FReplacedText
