#pragma once

#include <QString>

/** The help of a connector: a section for each of its areas. */
namespace FConnectorHelp {

/** The whole text, in HTML. Each section begins with the label of its area in bold. */
QString text();
/** The section of the area with that label; empty if there is none. */
QString section(const QString& text, const QString& label);

}  // namespace FConnectorHelp
