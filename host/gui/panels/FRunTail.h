#pragma once

#include "host/core/FExport.h"
#include "host/run/FFileFollower.h"

#include <QPlainTextEdit>
#include <QTimer>

#include <optional>

/** The end of a file that a program writes, as it grows. It keeps up with any program by leaving out what is older. */
class MERIX_EXPORT FRunTail : public QPlainTextEdit {
    Q_OBJECT

 public:
    /** Lines that are kept. */
    static constexpr int most = 5000;

    FRunTail(const QString& id, const QString& name, QWidget* parent);

    /** An empty path shows nothing. A path that is shown already starts again from the beginning. */
    void setFile(const QString& path);
    /** Reads on while the program runs; otherwise what is there once more, and no further. */
    void setLive(bool isLive);

 protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

 private:
    void readOn();
    void updateTimer();

    std::optional<FFileFollower> mFollower;
    QTimer mTimer;
    bool mIsLive = false;
};
