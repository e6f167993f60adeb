#pragma once

#include <QtGlobal>

#include "genericintegration/io/FFoundValue.h"

class FResultText;
class QRegExp;

/// The average of a column over a text's last rows.
///
/// A row is a line with a number in the column. The rows wished are looked for in as many last lines, the white space
/// at the text's end left out; with fewer lines than that, in all of them. But if the text begins with a line feed, the
/// lines that are wished beyond the text's are counted off from its end anew. A null separator: numbers are found.
FFoundValue averageLastRows(const FResultText& text, const QRegExp* separator, int column, quint32 rows);
