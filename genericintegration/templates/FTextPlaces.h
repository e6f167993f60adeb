#pragma once

#include <QStringView>

/** A place in a text as an editor shows it. Both count from 1; a column is a UTF-16 unit, a line ends in "\n". */
struct FTextPlace {
    qsizetype line = 1;
    qsizetype column = 1;

    bool operator==(const FTextPlace&) const = default;
};

/**
 * Turns positions of a text into places. Asking for positions in ascending order takes time linear in the text,
 * whatever their number; a smaller position than the last one makes it count from the start. The text must outlive this
 * object.
 */
class FTextPlaces {
 public:
    explicit FTextPlaces(QStringView text) : mText(text) {}

    /** The place of a position from 0 to the size of the text. */
    FTextPlace at(qsizetype position);

 private:
    QStringView mText;
    qsizetype mPosition = 0;
    qsizetype mLineStart = 0;
    qsizetype mLine = 1;
};
