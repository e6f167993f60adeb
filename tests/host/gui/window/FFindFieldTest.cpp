#include "host/core/FSelectionSet.h"
#include "host/gui/window/FFindField.h"
#include "tests/support/window/FWindowTest.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCompleter>
#include <QLineEdit>
#include <QTextBrowser>
#include <QTreeView>

namespace {

class FFindFieldTest : public FWindowTest {
 public:
    /** Types a part of a name, and takes the first thing that is found. */
    void choose(const QString& text) {
        trigger("find");
        auto* field = find<QLineEdit>("find");
        EXPECT_EQ(window().focusWidget(), field);
        type(field, text);
        QAbstractItemView* found = field->completer()->popup();
        ASSERT_TRUE(waitUntil([&] { return found->isVisible(); })) << "nothing found for " << text.toStdString();
        press(found, Qt::Key_Down);
        press(found, Qt::Key_Return);
        settle();
    }
};

}  // namespace

TEST_F(FFindFieldTest, objectsEntriesActionsAndCommandsAreFoundByAPartOfTheirName) {
    ASSERT_TRUE(
        run("genericIntegrationDefinition beam() { .addEntry(\"Geometry|span\", 10) }\n"
            "genericIntegrationConfiguration values() { .setDefinition(beam) }\nparameter loadFactor(1)"));
    choose("dfact");
    EXPECT_EQ(FSelectionSet::instance()->getObjects().value(0).toString(), "loadFactor");
    choose("try|span");
    EXPECT_EQ(FSelectionSet::instance()->getObjects().value(0).toString(), "values");
    EXPECT_TRUE(waitUntil([&] {
        const auto* tree = window().panels().dockOf("editor")->findChild<QTreeView*>("entryTree");
        return tree && tree->currentIndex().data().toString() == "span";
    }));
    choose("Undo");
    EXPECT_EQ(object<FManaged>("loadFactor"), nullptr);
    choose("addEntr");
    EXPECT_TRUE(find<QTextBrowser>("helpText")->toPlainText().contains("addEntry"));
}
