#pragma once

#include "host/core/FExport.h"

#include <QByteArray>
#include <QStringList>

/** The settings of the windows: each key and its default once. */
namespace FGuiSettings {

constexpr int mostRecentProjects = 12;

MERIX_EXPORT QByteArray getGeometry();
MERIX_EXPORT void setGeometry(const QByteArray& geometry);
/** Places of panels and toolbars. */
MERIX_EXPORT QByteArray getState();
MERIX_EXPORT void setState(const QByteArray& state);

/** The state of a splitter or header by its name; empty if it was never saved. */
MERIX_EXPORT QByteArray getLayout(const QString& name);
MERIX_EXPORT void setLayout(const QString& name, const QByteArray& layout);

/** Paths of projects, the last one used first, also of files that don't exist any more. */
MERIX_EXPORT QStringList getRecentProjects();
/** Moves the project to the front. */
MERIX_EXPORT void addRecentProject(const QString& path);

/** "desktop", "light" or "dark". */
MERIX_EXPORT QString getAppearance();
MERIX_EXPORT void setAppearance(const QString& appearance);

/** Level up to which the object editor shows attributes. */
MERIX_EXPORT unsigned int getUserLevel();

}  // namespace FGuiSettings
