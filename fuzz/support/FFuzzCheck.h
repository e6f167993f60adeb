#pragma once

#include <QByteArray>
#include <QString>

/** What has to hold for each input. A broken promise is reported on the standard error and ends the program. */
namespace FFuzzCheck {

[[noreturn]] void fail(const QString& message);

inline void holds(bool condition, const char* promise) {
    if (!condition) {
        fail(QString::fromUtf8(promise));
    }
}

/** Tells where two texts differ. */
void same(const QString& expected, const QString& found, const char* promise);

}  // namespace FFuzzCheck
