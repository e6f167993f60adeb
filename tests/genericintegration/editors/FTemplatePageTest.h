#pragma once

#include "genericintegration/editors/FGenIntCommandFileEdit.h"
#include "genericintegration/editors/FGenIntCommandFileEditor.h"
#include "host/core/FHistory.h"
#include "tests/support/window/FWindowTest.h"

#include <QApplication>
#include <QMenu>
#include <QPointer>
#include <QTextBlock>
#include <QTimer>
#include <QToolButton>

/** Tests of the page of an input template in the window. */
class FTemplatePageTest : public FWindowTest {
 public:
    FTemplatePageTest() {
        EXPECT_TRUE(
            run("genericIntegrationCommandFile deck() { .setFileName(\"deck.inp\") }\n"
                "genericIntegrationCommandFile other() { .setFileName(\"other.inp\") }\n"
                "genericIntegrationDefinition beam() { .addEntry(\"Geometry|span\", 2.5) .addEntry(\"force\", 10)\n"
                ".setFiles([deck, other]) }\n"
                "genericIntegrationConfiguration values() { .setDefinition(beam) }\n"
                "genericIntegrationComputation solver() { .setConfiguration(values) }"));
        window().resize(1200, 800);
    }

    FGenIntCommandFile& file(const QString& name = "deck") { return *object<FGenIntCommandFile>(name); }
    void setText(const QString& text, const QString& name = "deck") {
        FHistoryTransaction step("sample");
        file(name).setContent(text);
    }
    void open() {
        window().showTemplate(&file(), 0, 0);
        settle();
    }
    void open(const QString& text) {
        setText(text);
        open();
    }
    FGenIntCommandFileEditor& page() { return *window().findChild<FGenIntCommandFileEditor*>(); }
    FGenIntCommandFileEdit& edit() { return page().edit(); }
    QString shown() { return edit().document()->toRawText().replace(QChar::ParagraphSeparator, '\n'); }
    QString content(const QString& name = "deck") { return file(name).getPlainContent(); }
    FDefinitionGenInt& definition() { return *object<FDefinitionGenInt>("beam"); }
    FEntryDef* entry(const QString& path) { return dynamic_cast<FEntryDef*>(definition().getEntryOfScope(path)); }
    static QString lastStep() {
        return FHistory::instance()->getLabels().value(FHistory::instance()->getLabels().size() - 1);
    }

    /** Puts the cursor somewhere in a text, counted from its start. */
    QTextCursor at(const QString& text, int from, int to = -1) {
        const int start = shown().indexOf(text);
        EXPECT_GE(start, 0) << text.toStdString();
        QTextCursor cursor(edit().document());
        cursor.setPosition(start + from);
        cursor.setPosition(start + (to < 0 ? from : to), QTextCursor::KeepAnchor);
        return cursor;
    }
    void select(const QString& text) { edit().setTextCursor(at(text, 0, text.size())); }
    /** Moves the mouse onto a text, and returns the button that appears. */
    QToolButton* hover(const QString& text) {
        QTest::mouseMove(edit().viewport(), QPoint(1, 1));
        QTest::mouseMove(edit().viewport(), edit().cursorRect(at(text, 1)).center());
        settle();
        for (const char* name : {"addEntryButton", "editEntryButton"}) {
            auto* button = edit().findChild<QToolButton*>(name);
            if (button->isVisible()) {
                return button;
            }
        }
        return nullptr;
    }
    void click(const QString& text) {
        QToolButton* button = hover(text);
        ASSERT_NE(button, nullptr) << text.toStdString();
        QTest::mouseClick(button, Qt::LeftButton);
        settle();
    }
    /** Chooses from the menu that opens next: an action, or one in a submenu after "/". Returns what was in the menu.
     */
    QStringList choose(const QString& path, const std::function<void()>& open) {
        QStringList texts;
        QTimer timer;
        timer.setInterval(0);
        timer.callOnTimeout([&texts, &timer, path] {
            QPointer<QMenu> menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (!menu) {
                return;
            }
            timer.stop();
            const QList<QAction*> actions = menu->actions();
            QAction* wanted = nullptr;
            for (QAction* action : actions) {
                texts.append(action->text());
            }
            QMenu* level = menu;
            for (const QString& name : path.split('/')) {
                wanted = nullptr;
                for (QAction* action : level->actions()) {
                    wanted = action->text() == name ? action : wanted;
                }
                EXPECT_TRUE(wanted || path.isEmpty()) << name.toStdString();
                level = wanted && wanted->menu() ? wanted->menu() : level;
            }
            menu->close();
            if (wanted) {
                wanted->trigger();
            }
        });
        timer.start();
        open();
        // The platform of tests doesn't give the activation back.
        QApplication::setActiveWindow(&window());
        settle();
        EXPECT_FALSE(timer.isActive()) << "no menu";
        return texts;
    }
    void chooseForTag(const QString& tag, const QString& path) {
        choose(path, [&] { click(tag); });
    }
    QStringList chooseInText(const QString& path) {
        return choose(path, [&] {
            QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, edit().mapToGlobal({5, 5}));
            QApplication::sendEvent(edit().viewport(), &event);
        });
    }
    void undo() {
        press(&edit(), Qt::Key_Z, Qt::ControlModifier);
        settle();
    }
    void redo() { trigger("redo"); }
};
