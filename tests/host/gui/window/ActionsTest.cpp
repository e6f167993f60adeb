#include "host/gui/base/FGuiSettings.h"
#include "host/gui/base/FIcons.h"
#include "host/gui/window/FActionTable.h"
#include "host/gui/window/FPanelTable.h"
#include "tests/support/window/FWindowTest.h"

#include <QAction>
#include <QFile>
#include <QKeySequence>
#include <QMenu>

TEST_F(FWindowTest, actionsAreCompleteAndNoShortcutIsUsedTwice) {
    QStringList shortcuts;
    for (const FActionRow& row : FActionTable::rows()) {
        EXPECT_FALSE(QString::fromUtf8(row.text).isEmpty()) << row.id;
        EXPECT_FALSE(QString::fromUtf8(row.tip).isEmpty()) << row.id;
        EXPECT_FALSE(FIcons::get(QString::fromLatin1(row.icon)).isNull()) << row.id << ": no icon " << row.icon;
        EXPECT_TRUE(row.fill || *row.shortcut) << row.id << " has no key";
        if (*row.shortcut) {
            shortcuts.append(QString::fromLatin1(row.shortcut));
        }
    }
    for (const FPanelRow& row : FPanelTable::rows()) {
        EXPECT_FALSE(FIcons::get(QString::fromLatin1(row.icon)).isNull()) << row.id << ": no icon " << row.icon;
        shortcuts.append(QString::fromLatin1(row.shortcut));
    }
    for (const char* keyOfLines : {"Ctrl+E", "Ctrl+U"}) {
        EXPECT_FALSE(shortcuts.contains(keyOfLines)) << "on X11, fields take " << keyOfLines << " themselves";
    }
    for (const QString& shortcut : shortcuts) {
        EXPECT_EQ(shortcuts.count(shortcut), 1) << shortcut.toStdString();
        EXPECT_EQ(QKeySequence(shortcut, QKeySequence::PortableText).toString(QKeySequence::PortableText), shortcut);
    }
}

TEST_F(FWindowTest, entriesOfSubmenusHaveAccessKeys) {
    FGuiSettings::addRecentProject(QCoreApplication::applicationFilePath());
    for (const char* id : {"openRecent", "openExample", "appearance"}) {
        QMenu* menu = action(id)->menu();
        emit menu->aboutToShow();
        ASSERT_FALSE(menu->actions().isEmpty()) << id;
        for (const QAction* entry : menu->actions()) {
            EXPECT_TRUE(entry->text().contains('&')) << entry->text().toStdString();
        }
    }
}

TEST_F(FWindowTest, anActionThatIsNotPossibleSaysWhy) {
    const auto whyNot = [this](const char* id) {
        EXPECT_FALSE(action(id)->isEnabled()) << id;
        return action(id)->toolTip().section('\n', 1).toStdString();
    };
    EXPECT_EQ(whyNot("run"), "There is no computation yet: make a set-up");
    EXPECT_EQ(whyNot("undo"), "There is no step to undo");
    ASSERT_TRUE(run("genericIntegrationComputation solver()"));
    settle();
    EXPECT_EQ(action("run")->toolTip(), "Run solver (F5)");
    EXPECT_EQ(whyNot("showResults"), "No run has left output files");
    EXPECT_EQ(whyNot("rename"), "Select one object first");
    window().executeLocked([&] { EXPECT_EQ(whyNot("run"), "A script is being executed"); });
    EXPECT_TRUE(action("run")->isEnabled());
}

// MERIX_UPDATE_DOCS=1 writes the page instead.
TEST_F(FWindowTest, thePageOfShortcutsIsUpToDate) {
    QFile page(QStringLiteral(MERIX_SHORTCUTS_PAGE));
    if (qEnvironmentVariableIsSet("MERIX_UPDATE_DOCS")) {
        ASSERT_TRUE(page.open(QIODevice::WriteOnly));
        page.write(FActionTable::toMarkdown().toUtf8());
        return;
    }
    ASSERT_TRUE(page.open(QIODevice::ReadOnly)) << page.errorString().toStdString();
    EXPECT_EQ(QString::fromUtf8(page.readAll()), FActionTable::toMarkdown());
}
