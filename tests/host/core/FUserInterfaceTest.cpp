#include "host/core/FIO.h"
#include "host/core/FIni.h"
#include "host/core/FViewCtrl.h"
#include "tests/support/FModelTest.h"
#include "tests/support/FTestFolder.h"

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
    EXPECT_TRUE(logHolds("text!") && logHolds("answered \"Yes\"") && !logHolds("answered \"\"")) << logText();
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
