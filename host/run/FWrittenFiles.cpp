#include "host/run/FWrittenFiles.h"

#include "host/core/FNearestName.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>

namespace {

constexpr int mostFiles = 10'000;
constexpr int mostSimilar = 3;

bool isSame(const QString& a, const QString& b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

/** 0 for the closest; -1 if the names aren't similar. */
int distance(const QString& wanted, const QString& written) {
    const QFileInfo one(wanted);
    const QFileInfo other(written);
    if (isSame(one.fileName(), other.fileName())) {
        return 0;
    }
    if (!nearestName(one.fileName(), {other.fileName()}).isEmpty()) {
        return 1;
    }
    return isSame(one.completeBaseName(), other.completeBaseName()) ? 2 : -1;
}

}  // namespace

QHash<QString, QDateTime> FWrittenFiles::list() const {
    QHash<QString, QDateTime> files;
    const QDir folder(mFolder);
    QDirIterator iterator(mFolder, QDir::Files | QDir::Hidden | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (iterator.hasNext() && files.size() < mostFiles) {
        const QString path = iterator.next();
        files.insert(folder.relativeFilePath(path), iterator.fileInfo().lastModified());
    }
    return files;
}

QStringList FWrittenFiles::similarTo(const QString& file) const {
    const QHash<QString, QDateTime> now = list();
    QList<QPair<int, QString>> similar;
    for (auto written = now.begin(); written != now.end(); ++written) {
        const int far = distance(file, written.key());
        if (far >= 0 && written.key() != file && mBefore.value(written.key()) != written.value()) {
            similar.append({far, written.key()});
        }
    }
    std::sort(similar.begin(), similar.end());
    QStringList names;
    for (const auto& [far, name] : similar.mid(0, mostSimilar)) {
        names.append(name);
    }
    return names;
}
