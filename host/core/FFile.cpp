#include "host/core/FFile.h"

#include "host/core/FTextDecoder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <new>

namespace {

/** The value of the variable that a match names, or the match itself if the variable doesn't exist. */
QString valueOf(const QRegularExpressionMatch& match) {
    const QByteArray variable = match.captured(match.lastCapturedIndex()).toLocal8Bit();
    return qEnvironmentVariableIsSet(variable.constData()) ? qEnvironmentVariable(variable.constData())
                                                           : match.captured();
}

bool startsAtHome(const QString& name) {
    // Without the variable, Qt gives the root folder.
    return !qEnvironmentVariableIsEmpty("HOME") && (name == QLatin1String("~") || name.startsWith(QLatin1String("~/")));
}

QString tooLargeForMemory(const QFile& file) {
    return QStringLiteral("there isn't enough memory for its %1 bytes").arg(file.size());
}

}  // namespace

QString FFile::resolveEnv(const QString& name) {
    static const QRegularExpression reference(
        QStringLiteral("\\$\\{([A-Za-z_]\\w*)\\}|\\$([A-Za-z_]\\w*)|%([A-Za-z_]\\w*)%"));
    const bool isAtHome = startsAtHome(name);
    QString resolved = isAtHome ? QDir::homePath() : QString();
    int from = isAtHome ? 1 : 0;
    for (auto found = reference.globalMatch(name, from); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        resolved += name.mid(from, match.capturedStart() - from) + valueOf(match);
        from = match.capturedEnd();
    }
    return resolved + name.mid(from);
}

QString FFile::openOrdinary(QFile& file, QIODevice::OpenMode mode) {
    const QFileInfo info(file);
    if (!info.isFile() && info.exists()) {
        return info.isDir() ? QStringLiteral("it is a folder") : QStringLiteral("it isn't an ordinary file");
    }
    return file.open(mode) ? QString() : file.errorString();
}

QString FFile::readText(QFile& file, qint64 longest, QString& text) {
    QString fault = openOrdinary(file);
    QByteArray bytes;
    fault = fault.isEmpty() ? readBytes(file, longest, bytes) : fault;
    if (!fault.isEmpty()) {
        return fault;
    }
    try {
        text = FTextDecoder::decode(bytes);
    } catch (const std::bad_alloc&) {
        return tooLargeForMemory(file);
    }
    return {};
}

QString FFile::readBytes(QFile& file, qint64 longest, QByteArray& bytes) {
    if (file.size() > longest) {
        return QStringLiteral("it has %1 bytes, and at most %2 can be read").arg(file.size()).arg(longest);
    }
    try {
        bytes = readAtMost(file, longest + 1);
    } catch (const std::bad_alloc&) {
        return tooLargeForMemory(file);
    }
    if (bytes.size() > longest) {
        return QStringLiteral("it has more than %1 bytes").arg(longest);
    }
    return file.error() == QFileDevice::NoError ? QString() : file.errorString();
}

QByteArray FFile::readAtMost(QIODevice& device, qint64 most) {
    constexpr qint64 largestBlock = qint64{1} << 20U;
    QByteArray bytes;
    if (!device.isSequential()) {
        bytes.reserve(static_cast<int>(std::min(device.size() - device.pos(), most)));
    }
    QByteArray block;
    do {
        // With a size, it allocates that size first.
        block = device.read(std::min(largestBlock, most - bytes.size()));
        bytes += block;
    } while (!block.isEmpty());
    return bytes;
}

QString FFile::realPath(const QString& path) {
    const QFileInfo info(path);
    const QString real = info.canonicalFilePath();
    return real.isEmpty() ? info.absoluteFilePath() : real;
}
