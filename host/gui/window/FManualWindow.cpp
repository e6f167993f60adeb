#include "host/gui/window/FManualWindow.h"

#include "host/gui/base/FIcons.h"
#include "host/gui/base/FToolButton.h"
#include "host/gui/text/FManualText.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

FManualWindow::FManualWindow(QWidget* parent) : QDialog(parent), mpText(new FManualText) {
    setObjectName(QStringLiteral("manual"));
    setWindowTitle(QStringLiteral("Manual"));
    mpText->setObjectName(QStringLiteral("manualText"));
    mpText->setAccessibleName(QStringLiteral("Page of the manual"));
    auto* contents = new FToolButton(QStringLiteral("manualContents"), QStringLiteral("go-home"),
                                     QStringLiteral("Contents of the manual"));
    auto* back = new FToolButton(QStringLiteral("manualBack"), QStringLiteral("go-previous"),
                                 QStringLiteral("The page before (Alt+Left)"));
    auto* forward = new FToolButton(QStringLiteral("manualForward"), QStringLiteral("go-next"),
                                    QStringLiteral("The next page (Alt+Right)"));
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(contents, &QToolButton::clicked, this, [this] { showPage(QStringLiteral("manual/README.md")); });
    connect(back, &QToolButton::clicked, mpText, &QTextBrowser::backward);
    connect(forward, &QToolButton::clicked, mpText, &QTextBrowser::forward);
    connect(mpText, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(mpText, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
    auto* bar = new QHBoxLayout;
    bar->addWidget(contents);
    bar->addWidget(back);
    bar->addWidget(forward);
    bar->addStretch();
    auto* column = new QVBoxLayout(this);
    column->addLayout(bar);
    column->addWidget(mpText, 1);
    constexpr int columns = 110;
    constexpr int lines = 44;
    resize(columns * fontMetrics().averageCharWidth(), lines * fontMetrics().height());
}

bool FManualWindow::showPage(const QString& page) {
    const QString path =
        QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("../share/merix/docs/") + page);
    if (!QFileInfo::exists(path)) {
        return false;
    }
    mpText->follow(QUrl::fromLocalFile(QFileInfo(path).canonicalFilePath()));
    return true;
}
