#pragma once

#include "genericintegration/io/FSeparatorSettings.h"
#include "genericintegration/io/FValueDescription.h"

#include <QPlainTextEdit>
#include <QTextCursor>

/** Marks a value in a real editor, step by step with its cursor. */
class FLiteralMarks {
 public:
    FLiteralMarks(QPlainTextEdit& edit, const FValueDescription& value, const FSeparatorSettings& separators);

    /** "l"ine, "c"olumn or "a"nchor for each position of the document, else a blank. */
    QString painted;

 private:
    void markPlace();
    void markRows();
    void markLine(QTextCursor& cursor, const QString& text, int line, const QString& anchor);
    void markAnchor();
    void paint(const QTextCursor& cursor, char letter);

    QPlainTextEdit& edit;
    const FValueDescription& value;
    const FSeparatorSettings& separators;
    QTextCursor anchorCursor;
};
