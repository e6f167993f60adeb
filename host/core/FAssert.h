#pragma once

#include "host/core/FExport.h"

#include <QString>

#include <functional>

/** Programming errors: conditions that hold whatever a user or a file does. Users' errors are messages instead. */
class MERIX_EXPORT FAssert {
 public:
    struct Failure {
        QString expression;  //!< the condition as written
        QString place;       //!< file and line
        QString message;     //!< what it means
    };
    using Handler = std::function<void(const Failure&)>;

    /** Replaces what is done about a failure; an empty one brings back the default. Returns the handler before. */
    static Handler setHandler(Handler handler);
    static void fail(const char* expression, const char* file, int line, const QString& message);
};

/**
 * Checks a condition. In debug and sanitizer builds a failure prints the condition and its place and aborts; in a
 * release build it is a line in the log, and the program continues.
 */
#define F_ASSERT(condition, message) \
    ((condition) ? static_cast<void>(0) : FAssert::fail(#condition, __FILE__, __LINE__, message))
