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

void logNoDialog(const QString& caption, const QString& startPath, const char* consequence) {
    FLogMsg::info(caption, QStringLiteral("no window can ask for a file in %1").arg(startPath),
                  QString::fromLatin1(consequence));
}

QString answerOf(const QStringList& buttons, int button) {
    return buttons.isEmpty() ? QString() : QStringLiteral("Answered \"%1\"").arg(buttons.value(button));
}

}  // namespace

FUserInterface* FUserInterface::instance() {
    return current();
}

FUserInterface* FUserInterface::replace(FUserInterface* userInterface) {
    return std::exchange(current(), userInterface ? userInterface : &headless());
}

int FUserInterface::ask(const QString& title, const QString& text, const QStringList& buttons, int defaultButton) {
    FLogMsg::info(title, text, answerOf(buttons, defaultButton));
    return defaultButton;
}

int FUserInterface::warn(const QString& title, const QString& text, const QStringList& buttons, int defaultButton) {
    FLogMsg::warning(title, text, answerOf(buttons, defaultButton));
    return defaultButton;
}

void FUserInterface::tell(const QString& title, const QString& text) {
    FLogMsg::info(title, text, QString());
}

QString FUserInterface::askOpenFile(const QString& caption, const QString& startPath, const QString& filter) {
    Q_UNUSED(filter)
    logNoDialog(caption, startPath, "Nothing is opened; give its name");
    return {};
}

QStringList FUserInterface::askOpenFiles(const QString& caption, const QString& startPath) {
    logNoDialog(caption, startPath, "Nothing is opened; give its name");
    return {};
}

QString FUserInterface::askSaveFile(const QString& caption, const QString& startPath, const QString& filter) {
    Q_UNUSED(filter)
    logNoDialog(caption, startPath, "Nothing is saved; give its name");
    return {};
}

QString FUserInterface::askFolder(const QString& caption, const QString& startPath) {
    logNoDialog(caption, startPath, "Nothing is done; give its name");
    return {};
}

void FUserInterface::showTexts(const QString& title, const QMap<QString, QString>& texts) {
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        FLogMsg::info(title, QStringLiteral("%1: %2 characters").arg(text.key(), QString::number(text->size())),
                      QString());
    }
}
