#include "tests/support/window/FAnsweringInterface.h"

#include <gtest/gtest.h>

QString FAnsweringInterface::next(const QString& question) {
    questions.append(question);
    if (answers.isEmpty()) {
        ADD_FAILURE() << "unexpected question: " << question.toStdString();
        return {};
    }
    return answers.dequeue();
}

int FAnsweringInterface::ask(const QString& /*title*/, const QString& text, const QStringList& buttons,
                             int /*defaultButton*/) {
    const QString answer = next(text);
    EXPECT_TRUE(answer.isEmpty() || buttons.contains(answer))
        << answer.toStdString() << " is none of " << buttons.join(", ").toStdString();
    return buttons.indexOf(answer);
}

int FAnsweringInterface::warn(const QString& title, const QString& text, const QStringList& buttons,
                              int defaultButton) {
    return buttons.size() < 2 ? FWindowUserInterface::warn(title, text, buttons, defaultButton)
                              : ask(title, text, buttons, defaultButton);
}

QString FAnsweringInterface::askOpenFile(const QString& caption, const QString& /*startPath*/,
                                         const QString& /*filter*/) {
    return next(caption);
}

QStringList FAnsweringInterface::askOpenFiles(const QString& caption, const QString& /*startPath*/) {
    return next(caption).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

QString FAnsweringInterface::askSaveFile(const QString& caption, const QString& /*startPath*/,
                                         const QString& /*filter*/) {
    return next(caption);
}

QString FAnsweringInterface::askFolder(const QString& caption, const QString& /*startPath*/) {
    return next(caption);
}
