#pragma once

#include "genericintegration/connector/layout/FSoftConItemStructure.h"
#include "host/core/FSmartPtr.h"

#include <QDateTime>
#include <QStringList>

/** Requests for items, made from files, and the limits that keep a wrong folder from flooding a connector. */
namespace FItemRequests {

using List = QList<FSmartPtr<FSoftConItemStructure>>;

constexpr int most = 60;
constexpr int largestTemplate = 30;  //!< in MB of 1048576 bytes

/**
 * A request for each of the files, also those that don't exist. A folder stands for all files in and below it, by name;
 * each folder is entered once, wherever links lead.
 * @param base         the folder that the paths are relative to; empty: the folder of each path
 * @param keepFolders  requests hold the folder of their file below the base, instead of the base
 */
List ofPaths(const QStringList& paths, const FExpr<FObject>& type, const QString& base, bool keepFolders);

/**
 * Requests for the result files below a folder that changed after a time, the latest first. Plain texts, programs and
 * files that are shown already are left out.
 * @param isShown  is asked with the path relative to the folder
 */
List ofResults(const QString& folder, const QDateTime& since, const std::function<bool(const QString&)>& isShown);

/**
 * Calls `create` for each request in order. Logs why one is left out: all of them if there are too many, and templates
 * of files that are too large.
 */
void createItems(const List& requests, const std::function<bool(const FExpr<FObject>&)>& isTemplate,
                 const std::function<void(const FSoftConItemStructure&)>& create);

/** The size as a text if it is too large for a template, else empty. Logs it if there is a file name. */
QString checkFileSize(qint64 size, const QString& fileName);

}  // namespace FItemRequests
