#pragma once

#include "host/core/FExport.h"

#include <QObject>

#include <functional>

/** A call that is made from the event loop: once, however often it was requested before. */
class MERIX_EXPORT FQueuedCall : public QObject {
 public:
    explicit FQueuedCall(std::function<void()> call) : mCall(std::move(call)) {}

    void request();

 private:
    std::function<void()> mCall;
    bool mIsRequested = false;
};
