#include "genericintegration/connector/layout/FItemRequests.h"

#include "genericintegration/connector/layout/FConnectorLog.h"
#include "genericintegration/connector/layout/FItemPath.h"
#include "host/run/FResultsGeneric.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

namespace {

constexpr qint64 megabyte = 1048576;
constexpr qint64 gigabyte = 1024 * megabyte;

using Visit = std::function<void(const QFileInfo&)>;

void walk(const QFileInfo& entry, QDir::SortFlags order, QSet<QString>& entered, const Visit& visit) {
    if (!entry.isDir()) {
        visit(entry);
        return;
    }
    const QString folder = entry.canonicalFilePath();
    if (entered.contains(folder)) {
        return;
    }
    entered.insert(folder);
    const QDir::Filters filters = QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot;
    for (const QFileInfo& inside : QDir(entry.filePath()).entryInfoList(filters, order)) {
        walk(inside, order, entered, visit);
    }
}

void visitFiles(const QFileInfo& entry, QDir::SortFlags order, const Visit& visit) {
    QSet<QString> entered;
    walk(entry, order, entered, visit);
}

QString folderBelow(const QString& base, const QFileInfo& file) {
    return FItemPath::withoutBase(file.filePath(), base).remove(file.fileName());
}

QString folderOf(const QFileInfo& file) {
    return file.exists() ? file.canonicalPath() : QFileInfo(file.path()).canonicalFilePath();
}

}  // namespace

FItemRequests::List FItemRequests::ofPaths(const QStringList& paths, const FExpr<FObject>& type, const QString& base,
                                           bool keepFolders) {
    List requests;
    for (const QString& path : paths) {
        const QFileInfo given(path);
        const QString from = base.isEmpty() ? folderOf(given) : base;
        const QFileInfo start(given.exists() ? given.canonicalFilePath() : path);
        visitFiles(start, QDir::Name, [&](const QFileInfo& file) {
            requests.append(std::make_shared<FSoftConItemStructure>(
                type, file.filePath(), keepFolders ? folderBelow(from, file) : from, file.size()));
        });
    }
    return requests;
}

FItemRequests::List FItemRequests::ofResults(const QString& folder, const QDateTime& since,
                                             const std::function<bool(const QString&)>& isShown) {
    List requests;
    const QFileInfo start(folder);
    if (!start.exists()) {
        return requests;
    }
    const QString base = start.canonicalFilePath() + u'/';
    visitFiles(start, QDir::Time, [&](const QFileInfo& file) {
        const QString path = file.canonicalFilePath();
        if (!file.isExecutable() && since < file.lastModified() &&
            FResultsGeneric::getResultsFileType(path) != ResultsFileType::Text && !isShown(path.mid(base.size()))) {
            requests.append(std::make_shared<FSoftConItemStructure>(FResultsFileName::null(), path, base, file.size()));
        }
    });
    return requests;
}

void FItemRequests::createItems(const List& requests, const std::function<bool(const FExpr<FObject>&)>& isTemplate,
                                const std::function<void(const FSoftConItemStructure&)>& create) {
    if (requests.size() > most) {
        FConnectorLog::info(QStringLiteral("%1 items should be created.").arg(requests.size()),
                            QStringLiteral("It seems unlikely that so many files are needed. Item creation skipped."));
        return;
    }
    for (const FSmartPtr<FSoftConItemStructure>& request : requests) {
        if (!isTemplate(request->mType) || checkFileSize(request->mSize, request->mPath).isEmpty()) {
            create(*request);
        }
    }
}

QString FItemRequests::checkFileSize(qint64 size, const QString& fileName) {
    if (size <= largestTemplate * megabyte) {
        return {};
    }
    const qint64 unit = size > gigabyte ? gigabyte : megabyte;
    const QString number = QString::number(static_cast<double>(size) / static_cast<double>(unit), 'g', 3);
    const QString text = number + (unit == gigabyte ? QLatin1String("GB") : QLatin1String("MB"));
    if (!fileName.isEmpty()) {
        FConnectorLog::info(
            QStringLiteral("File %1 has a size of %2.").arg(fileName, text),
            QStringLiteral("The file ist too big - max size of result value templates = %1 MB, item creation skipped.")
                .arg(largestTemplate));
    }
    return text;
}
