#pragma once

#include <QString>

#include <utility>

/** Lines that are too long for a widget, which lays out a line as a whole whenever it changes or is painted. */
namespace FLongLines {

/** Longest line that a widget gets, in UTF-16 units. */
constexpr int longest = 100'000;
/** Longest piece of a line that was cut. */
constexpr int piece = 1000;

/** Number, from 1, of the first line that is longer than a limit; 0 if there is none. */
int first(const QString& text, int limit);
/** The text with each line that is too long cut into pieces. */
QString cut(const QString& text);
/** Where a line and column of the text are in the text that was cut; all count from 1. */
std::pair<int, int> placeInCut(const QString& text, int line, int column);

}  // namespace FLongLines
