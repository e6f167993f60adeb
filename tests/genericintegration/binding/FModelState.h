#pragma once

#include <QString>

/**
 * All that undo has to bring back, as text: the saved text; number, name, flags and update links of every object; and
 * what parameters and entries are worth.
 */
QString modelState();
