#pragma once

#include <QFile>
#include <QString>

#include <malloc.h>

/** The memory of this process, from /proc. */
namespace processMemory {

/** Megabytes of a field of /proc/self/status, such as "VmHWM:" for the peak. */
inline double megabytes(const char* field) {
    QFile status(QStringLiteral("/proc/self/status"));
    status.open(QIODevice::ReadOnly);
    const QString text = QString::fromLatin1(status.readAll());
    constexpr double kilo = 1024;
    return text.section(QLatin1String(field), 1).section(QLatin1String("kB"), 0, 0).trimmed().toDouble() / kilo;
}

inline void resetPeak() {
    malloc_trim(0);
    QFile clear(QStringLiteral("/proc/self/clear_refs"));
    clear.open(QIODevice::WriteOnly);
    clear.write("5");
}

}  // namespace processMemory
