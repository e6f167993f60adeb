#pragma once

#include <QString>

/** The group of names by which tags refer to the files that are generated. */
namespace FExportsGroup {

inline QString word() {
    return QStringLiteral("Exports");
}

/** What precedes the file name in a tag. */
inline QString prefix() {
    return word() + QLatin1Char('|');
}

}  // namespace FExportsGroup
