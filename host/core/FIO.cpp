#include "host/core/FIO.h"

#include "host/core/FUserInterface.h"

namespace {

QStringList present(QStringList buttons) {
    buttons.removeAll(QString());
    return buttons;
}

int answerOr(int escape, int answer) {
    return answer < 0 ? escape : answer;
}

}  // namespace

int FIO::question(void* parent, const QString& title, const QString& text, const QString& button0,
                  const QString& button1, const QString& button2, int defaultButton, int escape, bool* flag,
                  const QString& key) {
    Q_UNUSED(parent)
    Q_UNUSED(flag)
    Q_UNUSED(key)
    const QStringList buttons = present({button0, button1, button2});
    return answerOr(escape, FUserInterface::instance()->ask(title, text, buttons, defaultButton));
}

void FIO::information(void* parent, const QString& title, const QString& text, const QString& button0,
                      const QString& button1, const QString& button2, int defaultButton, int escape) {
    Q_UNUSED(parent)
    Q_UNUSED(button0)
    Q_UNUSED(button1)
    Q_UNUSED(button2)
    Q_UNUSED(defaultButton)
    Q_UNUSED(escape)
    FUserInterface::instance()->tell(title, text);
}

int FIO::warning(void* parent, const QString& title, const QString& text, const QString& button0,
                 const QString& button1, const QString& button2, int defaultButton, int escape) {
    Q_UNUSED(parent)
    const QStringList buttons = present({button0, button1, button2});
    return answerOr(escape, FUserInterface::instance()->warn(title, text, buttons, defaultButton));
}

QString FIO::openFileName(void* parent, const QString& caption, const QString& startPath, const QString& filter) {
    Q_UNUSED(parent)
    return FUserInterface::instance()->askOpenFile(caption, startPath, filter);
}
