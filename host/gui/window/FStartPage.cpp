#include "host/gui/window/FStartPage.h"

#include "host/gui/base/FEmptyHint.h"
#include "host/gui/base/FGuiSettings.h"
#include "host/gui/base/FIcons.h"
#include "host/gui/base/FSetUpAssistant.h"
#include "host/gui/base/FStateColor.h"
#include "host/gui/window/FMainWindow.h"
#include "host/gui/window/FProjectFiles.h"
#include "host/gui/window/FStartTile.h"
#include "host/script/FAutosave.h"
#include "host/script/FUnnamedWork.h"

#include <QDateTime>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

/** Whether the row stands for work on a project without a file. */
constexpr int unnamedRole = Qt::UserRole + 1;

/** The path with "~" for the home folder. */
QString shortPath(const QString& path) {
    const QString home = QDir::homePath() + QLatin1Char('/');
    return path.startsWith(home) ? QLatin1String("~/") + path.mid(home.size()) : path;
}

QString describe(const QString& path) {
    const QFileInfo file(path);
    const QString folder = shortPath(file.path());
    if (FAutosave::hasWork(path)) {
        return QStringLiteral("%1 · unsaved work from %2")
            .arg(folder, FProjectFiles::ageOf(QFileInfo(FAutosave::pathOf(path)).lastModified()));
    }
    return QStringLiteral("%1 · %2").arg(folder, FProjectFiles::ageOf(file.lastModified()));
}

}  // namespace

FStartPage::FStartPage(FMainWindow& window) : mWindow(window), mpRecent(new QListWidget(this)) {
    setObjectName(QStringLiteral("startPage"));
    auto* title = new QLabel(QStringLiteral("merix"), this);
    QFont large = title->font();
    large.setPointSizeF(2.4 * large.pointSizeF());
    large.setBold(true);
    title->setFont(large);
    title->setAlignment(Qt::AlignCenter);
    auto* motto = new QLabel(QStringLiteral("Couple a program: what goes in, what runs, what comes out."), this);
    motto->setAlignment(Qt::AlignCenter);

    auto* tiles = new QHBoxLayout;
    auto* create =
        new FStartTile(FIcons::get(QStringLiteral("document-new")), QStringLiteral("New set-up"),
                       QStringLiteral("A program, its input files and, if you have them, its output files"), this);
    create->setObjectName(QStringLiteral("startNew"));
    auto* open = new FStartTile(FIcons::get(QStringLiteral("document-open")), QStringLiteral("Open a project"),
                                QStringLiteral("A .mrx file; nothing is run by opening it"), this);
    open->setObjectName(QStringLiteral("startOpen"));
    auto* example =
        new FStartTile(FIcons::get(QStringLiteral("help-hint")), QStringLiteral("Try an example"),
                       QStringLiteral("A beam, a filter or a heat exchanger, copied to a folder of yours"), this);
    example->setObjectName(QStringLiteral("startExample"));
    for (FStartTile* tile : {create, open, example}) {
        tiles->addWidget(tile, 1);
    }

    auto* recentTitle = new QLabel(QStringLiteral("&Recent"), this);
    recentTitle->setBuddy(mpRecent);
    mpRecent->setObjectName(QStringLiteral("recentProjects"));
    mpRecent->setAccessibleName(QStringLiteral("Recent projects"));
    new FEmptyHint(mpRecent, QStringLiteral("Projects that you have opened appear here"));

    auto* middle = new QWidget;
    constexpr int widest = 60;  // times the height of a line
    middle->setMaximumWidth(widest * fontMetrics().height());
    auto* column = new QVBoxLayout(middle);
    const int em = fontMetrics().height();
    column->setSpacing(em);
    column->addStretch(2);
    column->addWidget(title);
    column->addWidget(motto);
    column->addSpacing(em);
    column->addLayout(tiles);
    column->addWidget(recentTitle);
    column->addWidget(mpRecent, 4);
    column->addStretch(2);
    auto* page = new QWidget;
    auto* row = new QHBoxLayout(page);
    row->addStretch(1);
    row->addWidget(middle, 8);
    row->addStretch(1);
    // So that the page doesn't make a small window larger.
    auto* scroll = new QScrollArea(this);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(page);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(scroll);
    setTabOrder(create, open);
    setTabOrder(open, example);
    setTabOrder(example, mpRecent);

    mSecondary = {motto, recentTitle};
    setColors();
    connect(create, &FStartTile::clicked, this, [this] { FSetUpAssistant::open(&mWindow); });
    connect(open, &FStartTile::clicked, this, [this] { mWindow.projectFiles().open(); });
    auto* examples = new QMenu(this);
    for (const QString& name : FProjectFiles::getExamples()) {
        examples->addAction(name, this, [this, name] { mWindow.projectFiles().openExample(name); });
    }
    example->setMenu(examples);
    example->setEnabled(!examples->isEmpty());
    // Once also on desktops where a click activates.
    connect(mpRecent, &QListWidget::itemActivated, this, [this] { mOpenRecent.request(); });
    connect(mpRecent, &QListWidget::itemClicked, this, [this] { mOpenRecent.request(); });
    refresh();
}

void FStartPage::openRecent() {
    const QListWidgetItem* item = mpRecent->currentItem();
    if (!item) {
        return;
    }
    const QString path = item->data(Qt::UserRole).toString();
    if (item->data(unnamedRole).toBool()) {
        mWindow.projectFiles().openUnnamed(path);
    } else {
        mWindow.projectFiles().open(path);
    }
}

void FStartPage::refresh() {
    mpRecent->clear();
    for (const QString& name : FUnnamedWork::left()) {
        const QFileInfo file(FAutosave::pathOf(name));
        auto* item = new QListWidgetItem(FIcons::get(QStringLiteral("document-new")),
                                         QStringLiteral("Unnamed project     never saved · work from %1")
                                             .arg(FProjectFiles::ageOf(file.lastModified())),
                                         mpRecent);
        item->setData(Qt::UserRole, name);
        item->setData(unnamedRole, true);
        item->setToolTip(file.filePath());
    }
    for (const QString& path : FGuiSettings::getRecentProjects()) {
        if (!QFileInfo::exists(path)) {
            continue;
        }
        auto* item =
            new QListWidgetItem(FIcons::get(QStringLiteral("document-open-recent")),
                                QStringLiteral("%1     %2").arg(QFileInfo(path).fileName(), describe(path)), mpRecent);
        item->setData(Qt::UserRole, path);
        item->setToolTip(path);
    }
}

void FStartPage::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        setColors();
    }
}

void FStartPage::setColors() {
    for (QLabel* label : mSecondary) {
        QPalette palette = label->palette();
        const QColor color = FStateColor::of(FStateColor::State::Secondary);
        if (palette.color(QPalette::WindowText) != color) {
            palette.setColor(QPalette::WindowText, color);
            label->setPalette(palette);
        }
    }
}
