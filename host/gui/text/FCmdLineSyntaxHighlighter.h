#pragma once

#include "host/core/FExport.h"

#include <QColor>
#include <QSyntaxHighlighter>

/** Base of what colours the texts of editors. The colours are those of a light palette; see FTextColor. */
class MERIX_EXPORT FCmdLineSyntaxHighlighter : public QSyntaxHighlighter {
 public:
    using QSyntaxHighlighter::QSyntaxHighlighter;

    static QColor sErrorUnderlineColor;  //!< text that is wrong
    static QColor sTextColor;            //!< what a search finds
    static QColor sCustomColor;          //!< the background of that
    static QColor sBackgroundColor;
};
