#include "host/run/FResultFiles.h"

#include "host/run/FSafePath.h"

#include <QDir>
#include <QFileInfo>

namespace {

QString quoted(const QString& name) {
    return QLatin1Char('\'') + name + QLatin1Char('\'');
}

QString reasonOf(const QString& folder, const QString& name) {
    const QFileInfo file(folder + name);
    if (!file.exists()) {
        return {};
    }
    if (const QString fault = FResultFiles::faultOfLinks(folder, name); !fault.isEmpty()) {
        return fault;
    }
    if (file.isDir()) {
        return QStringLiteral("it is a folder");
    }
    if (!file.isFile()) {
        return QStringLiteral("it is a pipe or a device, not an ordinary file");
    }
    return file.isReadable() ? QString() : QStringLiteral("its permissions don't allow reading");
}

}  // namespace

FResultFiles::FResultFiles(const QString& folder, const QStringList& names) : mFolder(folder), mNames(names) {}

QString FResultFiles::faultOfName(const QString& name) {
    if (name.isEmpty()) {
        return QStringLiteral("has no file name");
    }
    if (name.contains(QChar::Null)) {
        return QStringLiteral("has a file name that contains NUL");
    }
    const QString last = name.mid(name.lastIndexOf(QLatin1Char('/')) + 1);
    if (last.isEmpty() || last == QLatin1String(".")) {
        return QStringLiteral("has the file name \"%1\", which is a folder").arg(name);
    }
    return FSafePath::leadsOut(name)
               ? QStringLiteral("has the file name \"%1\", which leads out of the folder of the run").arg(name)
               : QString();
}

QString FResultFiles::faultOfLinks(const QString& folder, const QString& name) {
    if (FSafePath::leadsOut(folder, name)) {
        return QStringLiteral("it is outside the folder of the run: a folder in its path is a link");
    }
    const QFileInfo file(folder + QLatin1Char('/') + name);
    return file.exists() && FSafePath::isLinkOut(folder, name)
               ? QStringLiteral("it is a link to '%1', outside the folder of the run").arg(file.symLinkTarget())
               : QString();
}

QString FResultFiles::faultOfTemplate(const QString& name) {
    return QDir::isAbsolutePath(name) ? QStringLiteral("has the file name \"%1\", which is an absolute path").arg(name)
                                      : faultOfName(name);
}

QString FResultFiles::faultOfNames() const {
    for (const QString& name : mNames) {
        const QString fault = faultOfTemplate(name);
        if (!fault.isEmpty()) {
            return QStringLiteral(
                       "A result template %1. Give it the name of a file below that folder with setFileName.")
                .arg(fault);
        }
    }
    return {};
}

QString FResultFiles::missing() const {
    QStringList names;
    for (const QString& name : mNames) {
        if (!QFileInfo::exists(mFolder + name)) {
            names.append(quoted(name));
        }
    }
    return names.join(QStringLiteral(", "));
}

template <class Reason>
QString FResultFiles::listed(Reason reasonOf) const {
    QStringList names;
    for (const QString& name : mNames) {
        if (const QString reason = reasonOf(mFolder, name); !reason.isEmpty()) {
            names.append(QStringLiteral("%1 (%2)").arg(quoted(name), reason));
        }
    }
    return names.join(QStringLiteral(", "));
}

QString FResultFiles::unreadable() const {
    return listed(&reasonOf);
}

QString FResultFiles::outside() const {
    return listed(&faultOfLinks);
}

QString FResultFiles::empty() const {
    QStringList names;
    for (const QString& name : mNames) {
        const QFileInfo file(mFolder + name);
        if (file.isFile() && file.size() == 0) {
            names.append(quoted(name));
        }
    }
    return names.join(QStringLiteral(", "));
}
