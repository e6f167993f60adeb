#pragma once

#include <QString>

/** How a line is divided into columns. */
struct FSeparatorSettings {
    bool findNumbers = true;      //!< column n is number n of the line; the other settings are ignored
    bool spacesAndTabs = false;   //!< white space separates columns
    QString regularExpression{};  //!< separates columns, as does white space if that is set as well

    /** The regular expression of a separator; empty in find-numbers mode. */
    QString expression() const;

    bool operator==(const FSeparatorSettings&) const = default;
};
