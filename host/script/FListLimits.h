#pragma once

#include <QString>

class FObjectList;

/** Characters of a text that a script makes; a loop that doubles one would soon ask for more memory than there is. */
constexpr int longestText = 100'000'000;

/**
 * Lists of a script hold lists; what would use up the stack or never come to an end when it is walked over is refused.
 * Gives the reason, or an empty text for a list within the limits.
 */
QString listFault(const FObjectList& list);
