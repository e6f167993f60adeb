#include "genericintegration/connector/FSoftwareConnector.h"

#include "genericintegration/connector/FItemLinks.h"
#include "genericintegration/connector/FSceneFurniture.h"
#include "genericintegration/connector/FSoftConImportItem.h"
#include "genericintegration/connector/FSoftConObjectItem.h"
#include "genericintegration/connector/FSoftConScene.h"
#include "genericintegration/connector/FSoftConView.h"
#include "genericintegration/connector/dialogs/FSoftConDialog.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/setup/FGenIntCompSignalRapper.h"
#include "genericintegration/setup/FGenIntComputation.h"
#include "host/core/FHistory.h"
#include "host/core/FIni.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FSelectionSet.h"
#include "host/core/FUserStep.h"
#include "host/gui/base/FObjectMime.h"
#include "host/gui/window/FDocumentTabs.h"
#include "host/gui/window/FProjectFiles.h"
#include "host/script/FProject.h"
#include "tests/support/FTestFolder.h"
#include "tests/support/window/FWindowTest.h"

#include <QAccessible>
#include <QComboBox>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QGraphicsProxyWidget>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QTabBar>
#include <QToolButton>
#include <QTreeWidget>

namespace {

/** A set-up with a template on each side, in a project with a file. */
const char* const setUp = R"(
genericIntegrationCommandFile input() {
    .setFileName("case.inp")
    .setContent("a = <entry>a</entry>
b = <entry>b</entry>")
}
genericIntegrationCommandFile other() { .setFileName("more.inp") .setContent("<entry>b</entry>") }
genericIntegrationResultsFile output() { .setFileName("out.txt") .setContent("x = 1") }
genericIntegrationDefinition d() { .addEntry("a", 1) .addEntry("b", 2) .setFiles([input, other, output]) }
genericIntegrationConfiguration c() { .setDefinition(d) }
genericIntegrationComputation solver() {
    .setConfiguration(c)
    .setExecutable("sh")
    .setArguments(["-c", "cp case.inp out.txt; echo 1 > new.csv"])
}
softwareConnector con() { .setComputation(solver) }
destroy(Runner)
destroy(configurationGenInt)
destroy(definitionGenInt)
)";

class FSoftwareConnectorTest : public FWindowTest {
 public:
    FSoftwareConnectorTest() { FMerixCtrl::instance()->setProjectFile(folder.path("p.mrx")); }
    // The pointer may be over an item, and gets its usual shape again.
    ~FSoftwareConnectorTest() override { window().documents().closeAll(); }

    void open() {
        ASSERT_TRUE(run(setUp));
        object<FGenIntComputation>("solver")->openSoftwareConnector();
        settle();
        ASSERT_NE(connector().window(), &connector()) << "it is shown in the window";
    }
    FSoftwareConnector& connector() { return *object<FSoftwareConnector>("con"); }
    FSoftConScene& scene() { return *connector().getScene(); }
    /** What the items show, area by area. */
    std::string items() {
        settle();
        QMap<int, QStringList> labels;
        for (const FSoftConObjectItem* item : scene().objectItems()) {
            labels[item->getArea()].append(item->getLabelItem()->text());
        }
        QStringList areas;
        for (QStringList& area : labels) {
            area.sort();
            areas.append(area.join(QLatin1Char(' ')));
        }
        return areas.join(QStringLiteral(" | ")).toStdString();
    }
    FSoftConObjectItem* item(const QString& label) {
        settle();
        for (FSoftConObjectItem* candidate : scene().objectItems()) {
            if (candidate->getLabelItem()->text() == label) {
                return candidate;
            }
        }
        ADD_FAILURE() << "no item " << label.toStdString();
        return nullptr;
    }
    QStringList tabs() {
        settle();
        QStringList texts;
        for (int index = 0; index < connector().count(); ++index) {
            texts.append(connector().tabText(index));
        }
        return texts;
    }
    QPoint pointOf(const QPointF& scenePoint) {
        connector().getView()->ensureVisible(QRectF(scenePoint, QSizeF(1, 1)));
        return connector().getView()->mapFromScene(scenePoint);
    }
    QPointF inArea(SoftConArea area) {
        settle();
        const double x = isLeftArea(area) ? -150 : 150;
        const double y = isUpperArea(area) ? -60 : 120;
        EXPECT_EQ(scene().getArea({x, y}), area);
        return {x, y};
    }
    /** Drags over the view and drops there, as the window system does. */
    bool drop(const QMimeData& data, const QPointF& place) {
        QWidget* target = connector().getView()->viewport();
        const QPoint point = pointOf(place);
        QDragEnterEvent enter(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &enter);
        QDragMoveEvent move(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &move);
        const bool isAccepted = move.isAccepted();
        if (isAccepted) {
            QDropEvent event(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(target, &event);
        }
        settle();
        return isAccepted;
    }
    bool dropFiles(const QStringList& names, SoftConArea area) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& name : names) {
            urls.append(QUrl::fromLocalFile(folder.path(name)));
        }
        data.setUrls(urls);
        return drop(data, inArea(area));
    }
    static QString lastStep() {
        const QStringList labels = FHistory::instance()->getLabels();
        return labels.isEmpty() ? QString() : labels.last();
    }
    /** What was done in one step is undone and redone to the letter. */
    void expectOneStep(const QString& before, const QString& label) {
        settle();
        EXPECT_EQ(lastStep(), label);
        const QString after = savedModel();
        const std::string shown = items();
        trigger("undo");
        EXPECT_EQ(savedModel().toStdString(), before.toStdString());
        trigger("redo");
        EXPECT_EQ(savedModel().toStdString(), after.toStdString());
        EXPECT_EQ(items(), shown);
    }

    FTestFolder folder;
};

const char* const allItems = "case.inp more.inp | out.txt | solver";

}  // namespace

TEST_F(FSoftwareConnectorTest, itsItemsAndTabsFollowTheObjects) {
    open();
    EXPECT_EQ(items(), allItems);
    EXPECT_EQ(tabs(), (QStringList{"Overview", "case.inp", "more.inp", "out.txt"}));
    const QString before = savedModel();
    ASSERT_TRUE(
        run("input.setFileName(\"first.inp\")\nd.addEntry(\"Exports|mesh\", inputFile(\"mesh.msh\"))\n"
            "destroy(output)"));
    {
        const FUserStep step("rename");
        object<FManaged>("solver")->setName("ccx");
    }
    EXPECT_EQ(items(), "first.inp mesh.msh more.inp | ccx");
    EXPECT_EQ(tabs(), (QStringList{"Overview", "first.inp", "more.inp"}));
    // An entry of another type gets another kind of item.
    ASSERT_TRUE(run("c.setEntryValue(\"Exports|mesh\", resultsFileName(\"mesh.vtk\"))"));
    EXPECT_EQ(items(), "first.inp more.inp | mesh.vtk | ccx");
    for (int step = 0; step < 5; ++step) {
        trigger("undo");
    }
    EXPECT_EQ(savedModel().toStdString(), before.toStdString());
    EXPECT_EQ(items(), allItems);
}

TEST_F(FSoftwareConnectorTest, itIsInFrontWhenItsProjectIsOpened) {
    open();
    ASSERT_TRUE(FProject::instance()->save(folder.path("p.mrx")));
    trigger("newProject");
    EXPECT_EQ(window().documents().count(), 0);
    window().projectFiles().open(folder.path("p.mrx"));
    settle();
    EXPECT_EQ(window().documents().count(), 1);
    EXPECT_EQ(items(), allItems);
    EXPECT_EQ(connector().count(), 4);
}

TEST_F(FSoftwareConnectorTest, aTemplateThatIsShownFromElsewhereIsShownInItsTab) {
    open();
    emit connector().tabCloseRequested(2);
    window().showTemplate(object<FManaged>("other"), 1, 1);
    settle();
    EXPECT_EQ(window().documents().count(), 1) << "there is no second page of it";
    EXPECT_EQ(connector().tabText(connector().currentIndex()), "more.inp");
}

TEST_F(FSoftwareConnectorTest, eachTemplateHasOneTabAlsoIfItIsShownByTheStepThatMakesIt) {
    ASSERT_TRUE(run(QString(setUp).remove("softwareConnector con() { .setComputation(solver) }\ndestroy(Runner)\n"
                                          "destroy(configurationGenInt)\ndestroy(definitionGenInt)\n") +
                    "solver.openSoftwareConnector()\n"));
    settle();
    EXPECT_EQ(object<FSoftwareConnector>("solver_connector")->count(), 4);
}

TEST_F(FSoftwareConnectorTest, destroyingItTakesTheSetUpAndUndoBringsBackAll) {
    open();
    const QString before = savedModel();
    ASSERT_TRUE(run("destroy(con)"));
    settle();
    EXPECT_TRUE(savedModel().isEmpty()) << savedModel().toStdString();
    trigger("undo");
    EXPECT_EQ(savedModel().toStdString(), before.toStdString());
    EXPECT_EQ(items(), allItems);
    object<FGenIntComputation>("solver")->openSoftwareConnector();
    EXPECT_EQ(tabs(), (QStringList{"Overview", "case.inp", "more.inp", "out.txt"}));
    trigger("redo");
    settle();
    EXPECT_TRUE(savedModel().isEmpty());
    // The computation takes the connector along, too.
    trigger("undo");
    ASSERT_TRUE(run("destroy(solver)"));
    settle();
    EXPECT_TRUE(savedModel().isEmpty()) << savedModel().toStdString();
}

TEST_F(FSoftwareConnectorTest, tabsAreClosedAndOpenedAgain) {
    open();
    EXPECT_EQ(connector().tabBar()->tabButton(0, QTabBar::RightSide), nullptr) << "nobody could open it again";
    emit connector().tabCloseRequested(1);
    EXPECT_EQ(tabs(), (QStringList{"Overview", "more.inp", "out.txt"}));
    QTest::mouseDClick(connector().getView()->viewport(), Qt::LeftButton, {},
                       pointOf(item("case.inp")->mapToScene(item("case.inp")->boundingRect().center())));
    EXPECT_EQ(tabs().last(), "case.inp");
    EXPECT_EQ(connector().tabText(connector().currentIndex()), "case.inp");
    EXPECT_FALSE(find<QPushButton>("ButtonOverview")->isChecked());
    EXPECT_TRUE(FSelectionSet::instance()->contains(object<FManaged>("c"))) << "its values are in view";
    find<QPushButton>("ButtonOverview")->click();
    EXPECT_EQ(connector().currentIndex(), 0);
    // In a small window its top is seen, also when it is shown again.
    window().resize(1024, 700);
    openPanel("runs");
    settle();
    const QScrollBar* bar = connector().getView()->verticalScrollBar();
    ASSERT_GT(bar->maximum(), bar->minimum());
    connector().setCurrentIndex(1);
    settle();
    connector().gotoOverview();
    settle();
    EXPECT_EQ(bar->value(), bar->minimum());
}

TEST_F(FSoftwareConnectorTest, aClickSelectsAfterTheTimeOfADoubleClick) {
    open();
    const auto click = [this](const QString& label) {
        QTest::mouseClick(connector().getView()->viewport(), Qt::LeftButton, {},
                          pointOf(item(label)->mapToScene(item(label)->boundingRect().center())));
    };
    click("solver");
    EXPECT_EQ(FSelectionSet::instance()->count(), 0);
    ASSERT_TRUE(waitUntil([] { return FSelectionSet::instance()->contains(object<FManaged>("solver")); }));
    click("case.inp");
    ASSERT_TRUE(waitUntil([] { return FSelectionSet::instance()->contains(object<FManaged>("c")); }));
    click("out.txt");
    settle();
    EXPECT_TRUE(FSelectionSet::instance()->contains(object<FManaged>("c"))) << "a result template selects nothing";
}

TEST_F(FSoftwareConnectorTest, theMenuSetsTheSizeOfAllItemsAndAddsToItsArea) {
    open();
    const auto menuAt = [this](const QPointF& place) {
        const QPoint point = pointOf(place);
        QContextMenuEvent event(QContextMenuEvent::Mouse, point, connector().getView()->viewport()->mapToGlobal(point));
        QApplication::sendEvent(connector().getView()->viewport(), &event);
        return find<QMenu>("connectorMenu");
    };
    QMenu* menu = menuAt(inArea(SoftConOutputArea));
    EXPECT_EQ(menu->actions().first()->text(), "Add Result Values");
    const QString before = savedModel();
    for (QAction* action : menu->actions()) {
        EXPECT_EQ(action->isChecked(), action->text() == "Medium");
        if (action->text() == "Small") {
            action->trigger();
        }
    }
    menu->close();
    settle();
    EXPECT_EQ(connector().getItemSizeStr(), "Small");
    EXPECT_EQ(FIni().value("SoftwareConnector/lastItemSize").toInt(), 4);
    EXPECT_EQ(scene().getLayout()->getSizeName(), "Small");
    expectOneStep(before, "Set item size");
    FIni().remove("SoftwareConnector/lastItemSize");
}

TEST_F(FSoftwareConnectorTest, droppedFilesBecomeItemsOfTheirArea) {
    open();
    folder.write("in/mesh.msh", "1");
    folder.write("in/load.dat", "2");
    folder.write("polar.dat", "x = 3");
    const QString before = savedModel();
    EXPECT_FALSE(dropFiles({"polar.dat"}, SoftConExportArea)) << "takes no files";
    EXPECT_TRUE(dropFiles({"in"}, SoftConInputArea));
    EXPECT_EQ(items(), "case.inp load.dat mesh.msh more.inp | out.txt | solver");
    expectOneStep(before, "Add input files");
    trigger("undo");
    EXPECT_TRUE(dropFiles({"polar.dat", "polar.dat"}, SoftConOutputArea));
    EXPECT_EQ(items(), "case.inp more.inp | out.txt polar.dat | solver") << "the second one is refused";
    EXPECT_TRUE(logHolds("The file polar.dat is already part of this set up."));
    expectOneStep(before, "Add output templates");
    trigger("undo");
    EXPECT_TRUE(dropFiles({"polar.dat"}, SoftConImportArea));
    EXPECT_EQ(items(), "case.inp more.inp | out.txt | polar.dat | solver");
    for (int number = 0; number < 61; ++number) {
        folder.write(QString("many/%1.txt").arg(number), "1");
    }
    trigger("undo");
    dropFiles({"many"}, SoftConInputArea);
    EXPECT_EQ(items(), allItems);
    EXPECT_TRUE(logHolds("61 items should be created."));
    EXPECT_EQ(savedModel().toStdString(), before.toStdString());
}

TEST_F(FSoftwareConnectorTest, geometryIsDroppedOnItsAreaOrOnAnExport) {
    open();
    ASSERT_TRUE(run("point p(1, 2, 3)\npoint q(1, 2, 4)"));
    const QString before = savedModel();
    const std::unique_ptr<QMimeData> p(FObjectMime::encode({object<FManaged>("p")}));
    EXPECT_TRUE(drop(*p, inArea(SoftConExportArea)));
    EXPECT_EQ(items(), "case.inp more.inp | p_export | out.txt | solver");
    expectOneStep(before, "Add export");
    const std::unique_ptr<QMimeData> q(FObjectMime::encode({object<FManaged>("q")}));
    EXPECT_TRUE(drop(*q, item("p_export")->mapToScene(item("p_export")->boundingRect().center())));
    EXPECT_EQ(items(), "case.inp more.inp | p_export | out.txt | solver") << "it joins the export";
    EXPECT_TRUE(savedModel().contains("[p,q]") || savedModel().contains("[p, q]")) << savedModel().toStdString();
}

TEST_F(FSoftwareConnectorTest, aDeletedItemTakesAlongWhatOnlyItUsed) {
    open();
    const QString before = savedModel();
    auto* button = item("case.inp")->childItems().last();
    for (QGraphicsItem* child : item("case.inp")->childItems()) {
        button = dynamic_cast<QGraphicsProxyWidget*>(child) ? child : button;
    }
    auto* proxy = dynamic_cast<QGraphicsProxyWidget*>(button);
    ASSERT_NE(proxy, nullptr);
    qobject_cast<QToolButton*>(proxy->widget())->click();
    EXPECT_EQ(items(), "more.inp | out.txt | solver");
    EXPECT_EQ(tabs(), (QStringList{"Overview", "more.inp", "out.txt"}));
    EXPECT_EQ(textOf("d.getEntryNames()"), textOf("[\"b\"]")) << "the other template uses b";
    expectOneStep(before, "software connector: delete item");
}

TEST_F(FSoftwareConnectorTest, theButtonsAskForFiles) {
    open();
    folder.write("new.inp", "1");
    const QString before = savedModel();
    QToolButton* add = nullptr;
    for (QGraphicsItem* candidate : scene().items()) {
        const auto* proxy = dynamic_cast<QGraphicsProxyWidget*>(candidate);
        auto* button = proxy ? qobject_cast<QToolButton*>(proxy->widget()) : nullptr;
        add = button && button->accessibleName() == "Add Input Files" ? button : add;
    }
    ASSERT_NE(add, nullptr);
    QTimer::singleShot(0, [this] {
        auto* dialog = window().findChild<FSoftConDialog*>();
        ASSERT_NE(dialog, nullptr);
        dialog->selectFile(folder.path("new.inp"));
        dialog->accept();
    });
    add->click();
    EXPECT_EQ(items(), "case.inp more.inp new.inp | out.txt | solver");
    expectOneStep(before, "Add input files");
    FIni().remove("SoftwareConnector/addTemplatePath");
}

TEST_F(FSoftwareConnectorTest, aScreenReaderFindsItsButtonsAndItems) {
    open();
    QAccessibleInterface* view = QAccessible::queryAccessibleInterface(connector().getView());
    ASSERT_EQ(view->childCount(), 10 + 4);
    const auto part = [view](const QString& name) -> QAccessibleInterface* {
        for (int index = 0; index < view->childCount(); ++index) {
            if (view->child(index)->text(QAccessible::Name) == name) {
                EXPECT_EQ(view->indexOfChild(view->child(index)), index);
                return view->child(index);
            }
        }
        return nullptr;
    };
    EXPECT_EQ(part("Add Input Geometry")->role(), QAccessible::Button);
    EXPECT_TRUE(part("Automatic scan for results")->state().checkable);
    QAccessibleInterface* input = part("case.inp");
    ASSERT_NE(input, nullptr);
    EXPECT_EQ(input->role(), QAccessible::ListItem);
    EXPECT_EQ(input->parent(), view);
    const QPoint centre = input->rect().center();
    EXPECT_EQ(view->childAt(centre.x(), centre.y()), input);
    auto& actions = *input->actionInterface();
    actions.doAction(actions.actionNames().first());
    ASSERT_TRUE(waitUntil([] { return FSelectionSet::instance()->contains(object<FManaged>("c")); }));
    actions.doAction("Open");
    settle();
    EXPECT_EQ(connector().tabText(connector().currentIndex()), "case.inp");
    ASSERT_EQ(input->childCount(), 1);
    input->child(0)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(items(), "more.inp | out.txt | solver");
    EXPECT_EQ(part("case.inp"), nullptr);
}

TEST_F(FSoftwareConnectorTest, linesLeadFromWhatTemplatesUse) {
    open();
    const auto links = [this](const QString& label) {
        settle();
        const FSoftConObjectItem* shown = item(label);
        return shown ? scene().links().describe(*shown).toStdString() : std::string();
    };
    ASSERT_TRUE(
        run("point p(1, 2, 3)\nd.addEntry(\"Exports|tip\", geometryExport(\"tip.csv\", 0, [p]))\n"
            "d.addEntry(\"Exports|mesh\", inputFile(\"mesh.msh\"))\n"
            "input.setContent(\"<ENTRY>exports|TIP</ENTRY> <entry>a</entry>\")\n"
            "parameter half(c.getEntryValue(\"Exports|mesh\"))\n"));
    EXPECT_EQ(links("tip"), "used in case.inp");
    EXPECT_EQ(links("mesh.msh"), "");
    EXPECT_EQ(links("case.inp"), "uses tip");
    ASSERT_TRUE(run("c.setEntryValue(\"b\", format(2, c.getEntryValue(\"Exports|mesh\")))"));
    EXPECT_EQ(links("mesh.msh"), "used in more.inp") << "by way of b";
    ASSERT_TRUE(run("input.setContent(\"<entry>a</entry>\")"));
    EXPECT_EQ(links("tip"), "");
    trigger("undo");
    EXPECT_EQ(links("tip"), "used in case.inp");
    // A line isn't in the way of anything.
    const QRectF from = item("tip")->sceneBoundingRect();
    const QPointF onLine = scene().links().boundingRect().center();
    EXPECT_FALSE(from.contains(onLine));
    EXPECT_FALSE(scene().items(onLine).contains(const_cast<FItemLinks*>(&scene().links())));
    const auto highlighted = [this] {
        settle();
        const QImage picture = connector().getView()->grab().toImage();
        const QRgb color = connector().palette().color(QPalette::Highlight).rgb();
        int count = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                count += picture.pixel(x, y) == color ? 1 : 0;
            }
        }
        return count;
    };
    EXPECT_EQ(highlighted(), 0);
    QTest::mouseMove(connector().getView()->viewport(), pointOf(from.center()));
    EXPECT_GT(highlighted(), 0) << "the line of the item under the pointer";
    ASSERT_TRUE(run("destroy(p)"));
    scene().deleteItem(item("tip"));
    EXPECT_EQ(links("case.inp"), "");
}

TEST_F(FSoftwareConnectorTest, keysDoWhatTheMouseDoes) {
    open();
    ASSERT_TRUE(
        run("d.addEntry(\"Exports|mesh\", inputFile(\"mesh.msh\"))\npoint p(1, 2, 3)\n"
            "d.addEntry(\"Exports|tip\", geometryExport(\"tip.csv\", 0, [p]))"));
    settle();
    QGraphicsView* view = connector().getView();
    const auto focused = [&] {
        settle();
        QAccessibleInterface* part = QAccessible::queryAccessibleInterface(view)->focusChild();
        return part ? part->text(QAccessible::Name).toStdString() : std::string();
    };
    find<QTabBar>("softConTabBar")->setFocus();
    view->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(focused(), "tip");
    const auto go = [&](std::initializer_list<Qt::Key> keys) {
        for (const Qt::Key key : keys) {
            press(view, key);
        }
        return focused();
    };
    EXPECT_EQ(go({Qt::Key_Right, Qt::Key_Right}), "mesh.msh");
    EXPECT_EQ(go({Qt::Key_Up}), "mesh.msh") << "there is nothing above";
    EXPECT_EQ(go({Qt::Key_Left, Qt::Key_Down}), "solver");
    EXPECT_EQ(go({Qt::Key_Down}), "out.txt");
    EXPECT_EQ(go({Qt::Key_Up, Qt::Key_Space}), "solver");
    ASSERT_TRUE(waitUntil([] { return FSelectionSet::instance()->contains(object<FManaged>("solver")); }));
    EXPECT_EQ(go({Qt::Key_Up, Qt::Key_Right}), "case.inp");
    press(view, Qt::Key_Return);
    EXPECT_EQ(connector().tabText(connector().currentIndex()), "case.inp");
    connector().gotoOverview();
    view->setFocus();
    EXPECT_EQ(focused(), "case.inp") << "as it was left";
    const QString before = savedModel();
    EXPECT_EQ(go({Qt::Key_Delete}), "mesh.msh");
    expectOneStep(before, "software connector: delete item");
    // Tab goes to the buttons, and on to what follows.
    EXPECT_EQ(go({Qt::Key_Tab}), "Add Input Geometry");
    EXPECT_EQ(go({Qt::Key_Right, Qt::Key_Right}), "About Input Files");
    EXPECT_EQ(go({Qt::Key_Left, Qt::Key_Left, Qt::Key_Return}), "Add Input Geometry");
    EXPECT_EQ(lastStep(), "Add export");
    QTest::keyClick(view, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(go({Qt::Key_Tab, Qt::Key_Tab}), "");
    QTest::keyClick(view, Qt::Key_Backtab, Qt::ShiftModifier);
    QTest::keyClick(view, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focused(), "mesh.msh");
    // A click beside all items doesn't lead astray.
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, pointOf(inArea(SoftConImportArea)));
    EXPECT_EQ(focused(), "");
    EXPECT_EQ(go({Qt::Key_Tab}), "mesh.msh");
    // The menu is that of the item, not of the place of the pointer.
    QContextMenuEvent menu(QContextMenuEvent::Keyboard, QPoint(1, 1));
    QApplication::sendEvent(view->viewport(), &menu);
    EXPECT_EQ(find<QMenu>("connectorMenu")->actions().last()->text(), "Copy File Name");
    delete find<QMenu>("connectorMenu");
    QTest::keyClick(view, Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(find<QMenu>("connectorMenu")->actions().last()->text(), "Copy File Name");
    find<QMenu>("connectorMenu")->close();
}

TEST_F(FSoftwareConnectorTest, textsAndFilesAreAddedWithoutADialog) {
    open();
    const QString before = savedModel();
    connector().addInputTemplateFromString("y = 1", "added.inp");
    EXPECT_EQ(tabs().last(), "added.inp");
    expectOneStep(before, "Add input template");
    trigger("undo");
    EXPECT_EQ(connector().addOutputTemplateFromString("z = 1", "added.dat")->getPlainContent(), "z = 1");
    expectOneStep(before, "Add output template");
    trigger("undo");
    EXPECT_EQ(connector().addOutputFile("wing.vtk")->getFileNameText(), "wing.vtk");
    EXPECT_EQ(items(), "case.inp more.inp | out.txt | wing.vtk | solver");
    expectOneStep(before, "Add import");
}

TEST_F(FSoftwareConnectorTest, itIsLockedDuringARunAndFindsNewResultFiles) {
    open();
    connector().scanForResults(true);
    EXPECT_EQ(items(), allItems) << "the scan is off";
    QToolButton* scan = scene().findChild<FSceneFurniture*>()->scanButton();
    scan->click();
    bool wasLocked = false;
    QObject::connect(object<FGenIntComputation>("solver")->getSignalRapper(),
                     &FGenIntCompSignalRapper::genIntRunStarted,
                     [&] { wasLocked = !item("solver")->isEnabled() && !connector().widget(1)->isEnabled(); });
    scene().runComputation();
    ASSERT_TRUE(waitUntil([] { return object<FExternComputation>("solver")->canRun(); }));
    EXPECT_TRUE(wasLocked);
    EXPECT_EQ(items(), "case.inp more.inp | out.txt | new.csv | solver") << "plain texts are no result files";
    EXPECT_TRUE(item("solver")->isEnabled() && connector().widget(1)->isEnabled());
    connector().scanForResults(true);
    EXPECT_EQ(items(), "case.inp more.inp | out.txt | new.csv | solver") << "it is shown already";
}

TEST_F(FSoftwareConnectorTest, itIsLinkedToResultsOfAnother) {
    open();
    ASSERT_TRUE(
        run("genericIntegrationResultsFile flow() { .setFileName(\"flow.dat\") }\n"
            "genericIntegrationDefinition d2() { .setFiles([flow]) }\n"
            "genericIntegrationConfiguration c2() { .setDefinition(d2) }\n"
            "genericIntegrationComputation mesher() { .setConfiguration(c2) }\n"
            "softwareConnector con2() { .setComputation(mesher) }\ndestroy(Runner)"));
    const QString before = savedModel();
    const auto choose = [this](int top, int child) {
        QTimer::singleShot(0, [this, top, child] {
            auto* tree = find<QTreeWidget>("connectTree");
            ASSERT_GT(tree->topLevelItemCount(), top);
            tree->setCurrentItem(tree->topLevelItem(top)->child(child));
            find<QDialog>("connectConnector")->accept();
        });
    };
    choose(0, 0);
    connector().connectOtherConnector();
    EXPECT_TRUE(savedModel().contains("mesher.getResults().getResultTemplateName(\"flow.dat\")"));
    EXPECT_NE(item("flow.dat"), nullptr) << "called after the template that it is linked to";
    expectOneStep(before, "Add input file");
    // The other way round would be a circle.
    object<FGenIntComputation>("mesher")->openSoftwareConnector();
    settle();
    const QString linked = savedModel();
    choose(0, 0);
    object<FSoftwareConnector>("con2")->connectOtherConnector();
    settle();
    EXPECT_EQ(savedModel().toStdString(), linked.toStdString()) << "nothing of the link stays";
    EXPECT_TRUE(find<QLabel>("noticeText")->text().contains("Infinite recursion detected"));
    EXPECT_EQ(object<FSoftwareConnector>("con2")->getScene()->objectItems().size(), 2);
}

TEST_F(FSoftwareConnectorTest, aNewSetUpIsOneStepFromProgramAndSamples) {
    folder.write("case.inp", "height = 40\n");
    folder.write("case.dat", "stress = 2.5\n");
    folder.write("mesh.bin", QByteArray("\0\1\2", 3));
    trigger("newSetUp");
    type(find<QLineEdit>("newProgram"), "no-such-program-here");
    EXPECT_TRUE(find<QLabel>("newProgramFound")->text().startsWith(QChar(0x26a0)));
    find<QLineEdit>("newProgram")->clear();
    EXPECT_FALSE(find<QPushButton>("newCreate")->isEnabled());
    type(find<QLineEdit>("newProgram"), "sh -c 'cp case.inp case.dat'");
    EXPECT_TRUE(find<QLabel>("newProgramFound")->text().contains("/sh"));
    EXPECT_EQ(find<QLineEdit>("newName")->text(), "sh");
    const auto drop = [this](const QString& list, const QStringList& names) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& name : names) {
            urls.append(QUrl::fromLocalFile(folder.path(name)));
        }
        data.setUrls(urls);
        QDragEnterEvent enter({2, 2}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(find<QListWidget>(list)->viewport(), &enter);
        QDropEvent event({2, 2}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(find<QListWidget>(list)->viewport(), &event);
    };
    drop("newInputsList", {"case.inp", "mesh.bin"});
    drop("newOutputsList", {"case.dat"});
    EXPECT_EQ(find<QListWidget>("newInputsList")->count(), 2);
    find<QPushButton>("newCreate")->click();
    settle();
    auto* made = object<FSoftwareConnector>("sh_connector");
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->tabText(made->currentIndex()), "case.inp") << "the first template is open";
    EXPECT_EQ(made->getScene()->objectItems().size(), 4);
    EXPECT_EQ(textOf("getAttribute(sh, \"setArguments\")"), textOf("[\"-c\", \"cp case.inp case.dat\"]"));
    EXPECT_EQ(lastStep(), "New set-up");
    trigger("undo");
    settle();
    EXPECT_TRUE(savedModel().isEmpty()) << savedModel().toStdString();
}
