#include "host/run/FRunLock.h"

#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

bool FRunLock::isHeld() const {
    const int file = ::open(QFile::encodeName(mPath).constData(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0) {
        return false;
    }
    const bool isHeld = ::flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    ::close(file);
    return isHeld;
}

bool FRunLock::waitUntilFree(int milliseconds) const {
    constexpr unsigned long interval = 20;
    QElapsedTimer timer;
    timer.start();
    while (isHeld()) {
        if (timer.hasExpired(milliseconds)) {
            return false;
        }
        QThread::msleep(interval);
    }
    return true;
}
