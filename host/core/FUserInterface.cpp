#include "host/core/FUserInterface.h"

#include "host/core/FLogMsg.h"

#include <utility>

namespace {

FUserInterface& headless() {
    static FUserInterface none;
    return none;
}

FUserInterface*& current() {
    static FUserInterface* now = &headless();
    return now;
}

}  // namespace

FUserInterface* FUserInterface::instance() {
    return current();
}

FUserInterface* FUserInterface::replace(FUserInterface* userInterface) {
    return std::exchange(current(), userInterface ? userInterface : &headless());
}

int FUserInterface::ask(const QString& title, const QString& text, const QStringList& buttons, int defaultButton) {
    FLogMsg::info(title, text, QStringLiteral("answered \"%1\"").arg(buttons.value(defaultButton)));
    return defaultButton;
}

void FUserInterface::tell(const QString& title, const QString& text) {
    FLogMsg::info(title, text, QString());
}

QString FUserInterface::askOpenFile(const QString& caption, const QString& startPath, const QString& filter) {
    Q_UNUSED(filter)
    FLogMsg::info(caption, QStringLiteral("no window can ask for a file in %1").arg(startPath),
                  QStringLiteral("nothing is opened; give its name"));
    return {};
}
