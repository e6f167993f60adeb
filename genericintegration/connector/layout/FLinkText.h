#pragma once

#include <QString>

/** What a user reads of an expression that links an input file to a result of another connector. */
namespace FLinkText {

/** The argument of the expression's last call, without quotes: the name of the result. */
QString name(const QString& expression);
/** The name, if the expression asks for a result file; any other expression as it is. */
QString caption(const QString& expression);

}  // namespace FLinkText
