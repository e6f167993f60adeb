#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>

#include <functional>

/** Lets the program's events come until the condition holds, for half a minute at most. */
inline bool waitUntil(const std::function<bool()>& condition) {
    QElapsedTimer timer;
    timer.start();
    while (!condition() && timer.elapsed() < 30000) {
        QCoreApplication::processEvents();
        QThread::msleep(1);
    }
    return condition();
}
