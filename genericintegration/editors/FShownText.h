#pragma once

#include <QString>

#include <functional>

class QPlainTextEdit;

/** The text that a widget shows. */
namespace FShownText {

/**
 * Gives a widget another text, by changing only what differs; the cursor stays, and so do the scroll bars.
 * @param shown  the text that the widget has, with any line ends
 * @param fills  called with the length of the text, if all of it is replaced
 */
void change(QPlainTextEdit& edit, const QString& shown, const QString& text,
            const std::function<void(int length)>& fills = {});

}  // namespace FShownText
