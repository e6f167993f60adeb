#include "host/gui/base/FIcons.h"
#include "host/gui/window/FActionTable.h"
#include "host/gui/window/FPanelTable.h"
#include "tests/support/window/FWindowTest.h"

#include <QFile>
#include <QKeySequence>

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
    for (const QString& shortcut : shortcuts) {
        EXPECT_EQ(shortcuts.count(shortcut), 1) << shortcut.toStdString();
        EXPECT_EQ(QKeySequence(shortcut, QKeySequence::PortableText).toString(QKeySequence::PortableText), shortcut);
    }
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
