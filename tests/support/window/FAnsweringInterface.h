#pragma once

#include "host/gui/window/FWindowUserInterface.h"

#include <QQueue>

/** The window, with prepared answers in place of its questions. A question without an answer fails the test. */
class FAnsweringInterface : public FWindowUserInterface {
 public:
    using FWindowUserInterface::FWindowUserInterface;

    int ask(const QString& title, const QString& text, const QStringList& buttons, int defaultButton) override;
    int warn(const QString& title, const QString& text, const QStringList& buttons, int defaultButton) override;
    QString askOpenFile(const QString& caption, const QString& startPath, const QString& filter) override;
    QStringList askOpenFiles(const QString& caption, const QString& startPath) override;
    QString askSaveFile(const QString& caption, const QString& startPath, const QString& filter) override;
    QString askFolder(const QString& caption, const QString& startPath) override;

    QQueue<QString> answers;  //!< texts of buttons, or paths, separated by line ends; empty for a dialog that is closed
    QStringList questions;

 private:
    QString next(const QString& question);
};
