#include "genericintegration/connector/FItemLinks.h"
#include "genericintegration/connector/FLinkFinder.h"
#include "genericintegration/connector/FSoftConObjectItem.h"
#include "tests/genericintegration/connector/FConnectorTest.h"

namespace {

class FLinkFinderTest : public FConnectorTest {};

}  // namespace

TEST_F(FLinkFinderTest, linesLeadFromWhatTemplatesUse) {
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
