#include "host/gui/text/FCmdLineSyntaxHighlighter.h"

QColor FCmdLineSyntaxHighlighter::sErrorUnderlineColor(Qt::red);
QColor FCmdLineSyntaxHighlighter::sTextColor(Qt::black);
QColor FCmdLineSyntaxHighlighter::sCustomColor(Qt::yellow);
QColor FCmdLineSyntaxHighlighter::sBackgroundColor(Qt::white);
