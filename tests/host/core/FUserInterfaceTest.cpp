#include "host/core/FHold.h"
#include "host/core/FIO.h"
#include "host/core/FIni.h"
#include "host/core/FObjectEditorWgt.h"
#include "host/core/FViewCtrl.h"
#include "tests/support/FModelTest.h"
#include "tests/support/FTestFolder.h"

#include <QCoreApplication>

#include <optional>

namespace {

class FClosed : public FUserInterface {
 public:
    FClosed() { FUserInterface::replace(this); }
    ~FClosed() override { FUserInterface::replace(nullptr); }
    int ask(const QString&, const QString&, const QStringList& buttons, int) override {
        return buttons.size() - answer;
    }
    int warn(const QString&, const QString&, const QStringList& buttons, int) override {
        return buttons.size() - answer;
    }

    int answer = 1;
};

/** Windows that note what is requested of them. */
class FNoted : public FUserInterface {
 public:
    FNoted() { FUserInterface::replace(this); }
    ~FNoted() override { FUserInterface::replace(nullptr); }
    void reinitializeEditor(bool all) override { mNotes.append(all ? "all" : "selected"); }
    void hold(What what, bool isHeld) override {
        mNotes.append(QString(isHeld ? "hold %1" : "release %1").arg(static_cast<int>(what)));
    }
    int getScreenHeight() const override { return mHeight; }

    QStringList mNotes;
    int mHeight = 0;
};

class FUserInterfaceTest : public FModelTest {
 protected:
    static QList<int> answers(int escape) {
        return {FIO::question(nullptr, "T", "text?", "Yes", "No", "", 0, escape),
                FIO::warning(nullptr, "T", "text!", "Yes", "No", "", 0, escape)};
    }
};

TEST_F(FUserInterfaceTest, aClosedDialogAnswersWithItsEscapeButNoDialogWithTheDefault) {
    EXPECT_EQ(answers(1), (QList<int>{0, 0}));
    EXPECT_EQ(FIO::warning(nullptr, "T", "only told"), 0);
    EXPECT_EQ(log().size(), 3);
    EXPECT_TRUE(logHolds("text!") && logHolds("Answered \"Yes\"") && !logHolds("Answered \"\"")) << logText();
    FClosed windows;
    EXPECT_EQ(answers(1), (QList<int>{1, 1})) << "the second button";
    windows.answer = 3;
    EXPECT_EQ(answers(1), (QList<int>{1, 1}));
    EXPECT_EQ(answers(-1), (QList<int>{-1, -1}));
}

TEST_F(FUserInterfaceTest, withoutWindowsNothingIsChosen) {
    QString directory = "/data";
    EXPECT_EQ(FViewCtrl::getOpenFileName("Open It", directory, "") + directory, "/data");
    EXPECT_EQ(FViewCtrl::getSaveFileName("Save It", "/data/a", ""), "");
    EXPECT_TRUE(logHolds("Open It") && logHolds("Save It"));
}

TEST_F(FUserInterfaceTest, theObjectEditorIsRebuiltOnceForAllRequests) {
    FNoted windows;
    FObjectEditorWgt::instance()->reinitialize();
    FObjectEditorWgt::instance()->reinitializeAll();
    FObjectEditorWgt::instance()->reinitialize();
    EXPECT_TRUE(windows.mNotes.isEmpty()) << "not before the event loop";
    QCoreApplication::processEvents();
    FObjectEditorWgt::instance()->reinitialize();
    QCoreApplication::processEvents();
    EXPECT_EQ(windows.mNotes, (QStringList{"all", "selected"}));
}

TEST_F(FUserInterfaceTest, holdsOfAPartNest) {
    FNoted windows;
    std::optional<FEditorUpdateBlocker> editors(std::in_place);
    {
        const FEditorUpdateBlocker inner;
        const FObjectTreeBlocker tree;
    }
    EXPECT_EQ(windows.mNotes, (QStringList{"hold 1", "hold 2", "release 2"}));
    editors.reset();
    EXPECT_EQ(windows.mNotes.last(), "release 1");
}

TEST_F(FUserInterfaceTest, aScreenIsSmallBelow800Pixels) {
    EXPECT_FALSE(FViewCtrl::hasSmallScreen());
    FNoted windows;
    for (const auto& [height, isSmall] : {std::pair(799, true), {800, false}}) {
        windows.mHeight = height;
        EXPECT_EQ(FViewCtrl::hasSmallScreen(), isSmall) << height;
    }
}

TEST(FIniTest, aSettingIsAWholeNumberOrEmpty) {
    const FTestFolder folder;
    FIni::setFile(folder.path("settings.ini"));
    for (const auto& [value, number] :
         {std::pair(QVariant(-7), "-7"), {"12", "12"}, {2.5, ""}, {"many", ""}, {"", ""}}) {
        FIni().setValue("a/b", value);
        const FExpr<FInteger> setting = FIni::getSetting("a/b");
        EXPECT_EQ(setting ? setting->toString() : QString(), number) << value.toString().toStdString();
    }
    EXPECT_FALSE(FIni::getSetting("a/c"));
    FIni::setFile(QString());
}

}  // namespace
