#include "genericintegration/setup/FConfigurationGenInt.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "host/core/FHistory.h"
#include "host/core/FModel.h"
#include "host/gui/panels/FObjectTreeWgt.h"
#include "tests/support/FTestFolder.h"
#include "tests/support/window/FWindowTest.h"

#include <QDialog>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>

namespace {

class FConfigurationGenIntDialogTest : public FWindowTest {
 public:
    FConfigurationGenIntDialogTest() { EXPECT_TRUE(run("parameter a(1)")); }

    /** Opens the dialog from the menu of the tree, and presses a button. */
    void choose(const QString& button) {
        QMenu menu;
        window().panels().get<FObjectTreeWgt>().fillMenu(menu);
        menu.findChild<QMenu*>("newObjectMenu")->actions().last()->trigger();
        settle();
        QTest::mouseClick(find<QPushButton>(button), Qt::LeftButton);
        settle();
    }
    static int steps() { return FHistory::instance()->getLabels().size(); }
    /** The definition of the only configuration. */
    static QString definition() {
        const QList<FManaged*> all = FModel::instance()->getEntities(FConfigurationGenInt::null());
        const auto* configuration = dynamic_cast<FConfigurationGenInt*>(all.value(0));
        return configuration ? configuration->getDefinition().toString() : QStringLiteral("none");
    }
};

}  // namespace

TEST_F(FConfigurationGenIntDialogTest, aConfigurationComesWithItsDefinitionInOneStep) {
    const QString before = savedModel();
    const int first = steps();
    choose("newDefinition");
    EXPECT_EQ(definition(), "definitionGenInt");
    EXPECT_EQ(steps(), first + 1);
    trigger("undo");
    EXPECT_EQ(savedModel(), before);

    FTestFolder folder;
    ASSERT_TRUE(run("genericIntegrationDefinition wing() { .addEntry(\"span\", 3) }"));
    ASSERT_TRUE(run(QStringLiteral("wing.save(\"%1\")").arg(folder.path("wing.lodm"))));
    choose("useDefinition");
    EXPECT_EQ(definition(), "wing");
    EXPECT_EQ(textOf("configurationGenInt.getEntryValue(\"span\")"), "3");
    trigger("undo");
    EXPECT_EQ(definition(), "none");

    const QString listed = savedModel();
    dialogs().answers << folder.path("wing.lodm");
    choose("importDefinition");
    EXPECT_EQ(definition(), "wing_01");
    trigger("undo");
    EXPECT_EQ(savedModel(), listed);

    dialogs().answers << QString();
    choose("importDefinition");
    EXPECT_EQ(savedModel(), listed) << "no file was chosen";
    EXPECT_EQ(window().findChild<QDialog*>("newConfiguration"), nullptr);
}
