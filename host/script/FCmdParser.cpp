#include "host/script/FCmdParser.h"

#include "host/core/FHistory.h"

#include <utility>

namespace {

FCmdParser* current = nullptr;

}  // namespace

FCmdParser* FCmdParser::currentParser() {
    return current;
}

void FCmdParser::willAct(FObject* receiver) {
    const auto* managed = dynamic_cast<const FManaged*>(receiver);
    if (managed && current && FHistory::instance()->inTransaction()) {
        FHistory::instance()->addStep(managed);
    }
}

FCmdParser::Activation::Activation(FCmdParser* parser) : mpBefore(std::exchange(current, parser)) {}

FCmdParser::Activation::~Activation() {
    current = mpBefore;
}
