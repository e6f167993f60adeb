#include "host/core/FAssert.h"

#include "host/core/FLogMsg.h"

#include <QFileInfo>

#include <cstdlib>
#include <utility>

namespace {

void reportFailure(const FAssert::Failure& failure) {
    FLogMsg::error(failure.place, QStringLiteral("assertion failed: %1: %2").arg(failure.expression, failure.message),
                   QStringLiteral("This is a fault of the program; please report it"));
#ifdef MERIX_ASSERTIONS
    FLogMsg::endLine();
    std::abort();
#endif
}

FAssert::Handler& handler() {
    static FAssert::Handler current = reportFailure;
    return current;
}

}  // namespace

FAssert::Handler FAssert::setHandler(Handler fresh) {
    return std::exchange(handler(), fresh ? std::move(fresh) : Handler(reportFailure));
}

void FAssert::fail(const char* expression, const char* file, int line, const QString& message) {
    const QString name = QFileInfo(QString::fromLocal8Bit(file)).fileName();
    handler()({QString::fromLatin1(expression), name + QLatin1Char(':') + QString::number(line), message});
}
