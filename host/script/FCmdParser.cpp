#include "host/script/FCmdParser.h"

#include <utility>

namespace {

FCmdParser* current = nullptr;

}  // namespace

FCmdParser* FCmdParser::currentParser() {
    return current;
}

FCmdParser::Activation::Activation(FCmdParser* parser) : mpBefore(std::exchange(current, parser)) {}

FCmdParser::Activation::~Activation() {
    current = mpBefore;
}
