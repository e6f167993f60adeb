#include "host/core/FUserInterface.h"
#include "host/gui/window/FGuiSession.h"
#include "tests/support/FModelTest.h"
#include "tests/support/FTestFolder.h"

#include <QImage>

namespace {

class FGuiSessionTest : public FModelTest {
 public:
    QImage picture(const QStringList& shown) {
        FGuiSession session;
        session.shown = shown;
        session.size = QSize(1100, 760);
        session.screenshot = mFolder.path("picture.png");
        EXPECT_EQ(session.run(), 0);
        return QImage(session.screenshot);
    }
    /** The share of points in which two pictures differ. */
    static double difference(const QImage& one, const QImage& other) {
        int count = 0;
        for (int y = 0; y < one.height(); ++y) {
            for (int x = 0; x < one.width(); ++x) {
                count += one.pixel(x, y) != other.pixel(x, y);
            }
        }
        return static_cast<double>(count) / (one.width() * one.height());
    }

    FTestFolder mFolder;
};

}  // namespace

TEST_F(FGuiSessionTest, aPictureHasTheDialogThatWasShown) {
    const QImage start = picture({});
    ASSERT_EQ(start.size(), QSize(1100, 760));
    EXPECT_EQ(difference(start, picture({})), 0);
    const QImage dialog = picture({"newSetUp"});
    ASSERT_EQ(dialog.size(), start.size());
    EXPECT_GT(difference(start, dialog), 0.1);
    EXPECT_EQ(difference(start, picture({"nothing of that name"})), 0);
    EXPECT_TRUE(logHolds("there is no panel, action or object \"nothing of that name\""));
}
