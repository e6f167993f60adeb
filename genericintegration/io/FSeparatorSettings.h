#pragma once

#include <QRegExp>
#include <QString>

/** How a line is cut into columns. */
struct FSeparatorSettings {
    bool findNumbers = true;      //!< column n is number n of the line; the others are then ignored
    bool spacesAndTabs = false;   //!< white space separates columns
    QString regularExpression{};  //!< separates columns, beside white space if that is set, too

    /** What separates columns: empty while numbers are found. One that isn't valid never matches. */
    QRegExp pattern() const;

    bool operator==(const FSeparatorSettings&) const = default;
};
