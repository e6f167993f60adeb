#include "genericintegration/connector/FSceneDrops.h"
#include "host/gui/base/FObjectMime.h"
#include "tests/genericintegration/connector/FConnectorTest.h"

#include <QMimeData>

namespace {

class FSceneDropsTest : public FConnectorTest {};

}  // namespace

TEST_F(FSceneDropsTest, droppedFilesBecomeItemsOfTheirArea) {
    open();
    folder.write("in/mesh.msh", "1");
    folder.write("in/load.dat", "2");
    folder.write("polar.dat", "x = 3");
    const QString before = savedModel();
    EXPECT_FALSE(drop(*filesOf({"polar.dat"}), inArea(SoftConExportArea))) << "takes no files";
    EXPECT_TRUE(drop(*filesOf({"in"}), inArea(SoftConInputArea)));
    EXPECT_EQ(items(), "case.inp load.dat mesh.msh more.inp | out.txt | solver");
    expectOneStep(before, "Add input files");
    trigger("undo");
    EXPECT_TRUE(drop(*filesOf({"polar.dat", "polar.dat"}), inArea(SoftConOutputArea)));
    EXPECT_EQ(items(), "case.inp more.inp | out.txt polar.dat | solver") << "the second one is refused";
    EXPECT_TRUE(logHolds("The file polar.dat is already part of this set up."));
    expectOneStep(before, "Add output templates");
    trigger("undo");
    EXPECT_TRUE(drop(*filesOf({"polar.dat"}), inArea(SoftConImportArea)));
    EXPECT_EQ(items(), "case.inp more.inp | out.txt | polar.dat | solver");
    for (int number = 0; number < 61; ++number) {
        folder.write(QString("many/%1.txt").arg(number), "1");
    }
    trigger("undo");
    drop(*filesOf({"many"}), inArea(SoftConInputArea));
    EXPECT_EQ(items(), allItems);
    EXPECT_TRUE(logHolds("61 items should be created."));
    EXPECT_EQ(savedModel().toStdString(), before.toStdString());
}

TEST_F(FSceneDropsTest, geometryIsDroppedOnItsAreaOrOnAnExport) {
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
