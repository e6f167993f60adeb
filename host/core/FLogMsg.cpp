#include "host/core/FLogMsg.h"

#include <iostream>
#include <utility>

namespace {

void print(const FLogMsg& message) {
    std::cerr << message.toLine().toStdString() << std::endl;
}

FLogMsg::Sink& sink() {
    static FLogMsg::Sink current = print;
    return current;
}

}  // namespace

QString FLogMsg::toLine() const {
    const QString prefix = kind == Kind::Error     ? QStringLiteral("error: ")
                           : kind == Kind::Warning ? QStringLiteral("warning: ")
                                                   : QString();
    const QString from = source.isEmpty() ? QString() : source + QStringLiteral(": ");
    const QString tail = consequence.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(consequence);
    return prefix + from + message + tail;
}

void FLogMsg::info(const QString& source, const QString& message, const QString& consequence, Stream stream) {
    sink()({Kind::Info, source, message, consequence, stream});
}

void FLogMsg::warning(const QString& source, const QString& message, const QString& consequence) {
    sink()({Kind::Warning, source, message, consequence, Stream::StandardError});
}

void FLogMsg::error(const QString& source, const QString& message, const QString& consequence) {
    sink()({Kind::Error, source, message, consequence, Stream::StandardError});
}

FLogMsg::Sink FLogMsg::setSink(Sink fresh) {
    return std::exchange(sink(), fresh ? std::move(fresh) : Sink(print));
}
