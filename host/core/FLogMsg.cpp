#include "host/core/FLogMsg.h"

#include "host/core/FChanges.h"

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

bool strictMode = false;
int strictErrors = 0;

}  // namespace

QString FLogMsg::toLine() const {
    const QString prefix = kind == Kind::Error     ? QStringLiteral("error: ")
                           : kind == Kind::Warning ? QStringLiteral("warning: ")
                                                   : QString();
    const QString& origin = place.isEmpty() ? source : place;
    const QString from = origin.isEmpty() ? QString() : origin + QStringLiteral(": ");
    const QString tail = consequence.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(consequence);
    return prefix + from + message + tail;
}

void FLogMsg::send() const {
    sink()(*this);
    emit FChanges::instance()->messageLogged(*this);
}

void FLogMsg::info(const QString& source, const QString& message, const QString& consequence, Stream stream) {
    FLogMsg{Kind::Info, source, message, consequence, stream, {}}.send();
}

void FLogMsg::warning(const QString& source, const QString& message, const QString& consequence, const QString& place) {
    strictErrors += strictMode ? 1 : 0;
    FLogMsg{strictMode ? Kind::Error : Kind::Warning, source, message, consequence, Stream::StandardError, place}
        .send();
}

void FLogMsg::error(const QString& source, const QString& message, const QString& consequence, Stream stream) {
    FLogMsg{Kind::Error, source, message, consequence, stream, {}}.send();
}

void FLogMsg::setStrict(bool strict) {
    strictMode = strict;
}

bool FLogMsg::isStrict() {
    return strictMode;
}

int FLogMsg::getStrictErrors() {
    return strictErrors;
}

FLogMsg::Sink FLogMsg::setSink(Sink fresh) {
    return std::exchange(sink(), fresh ? std::move(fresh) : Sink(print));
}
