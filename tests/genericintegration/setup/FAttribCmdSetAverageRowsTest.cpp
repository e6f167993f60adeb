#include "genericintegration/setup/FAttribCmdSetAverageRows.h"

#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/core/FNull.h"
#include "tests/support/FModelTest.h"

namespace {

class FProbeEditor : public FAverageRowsEditor {
 public:
    FExpr<FGenIntResultsFile> getResultsFile() const override { return mFile; }
    void averageChanged(const FExpr<FUnsigned>& rows) override { mCalls << rows.toString(); }

    FExpr<FGenIntResultsFile> mFile;
    QStringList mCalls;
};

class FAttribCmdSetAverageRowsTest : public FModelTest {
 protected:
    void set(const FExprBase& argument) {
        mCommand->setArguments({argument});
        mCommand->setOutOfDate(true);
        EXPECT_TRUE(mCommand->update());
    }
    QString value(const FAttribCmdSetAverageRows& command) const {
        FExprBase current;
        command.getAttrValue(current);
        return current.toString();
    }

    FProbeEditor mEditor;
    FAttribCmdSetAverageRows* mCommand = new FAttribCmdSetAverageRows(&mEditor);
    FExprBase mKeep{mCommand};
};

}  // namespace

TEST_F(FAttribCmdSetAverageRowsTest, tellsItsEditor) {
    set(FExprBase(new FUnsigned(3)));
    set(FExprBase(new FInteger(4)));
    set(FExprBase(FNull::null()));
    EXPECT_EQ(mEditor.mCalls, QStringList({"3", "4", "NULL"}));
    set(FExprBase(new FDouble(1.5)));
    set(FExprBase(new FString("5")));
    set(FExprBase());
    EXPECT_EQ(mEditor.mCalls.size(), 3) << "what is no number of rows changes nothing";

    auto* loose = new FAttribCmdSetAverageRows;
    const FExprBase keep(loose);
    loose->setArguments({FExprBase(new FUnsigned(3))});
    EXPECT_TRUE(loose->update());
    EXPECT_EQ(value(*loose), "0");
}

TEST_F(FAttribCmdSetAverageRowsTest, showsTheRowsOfTheEditorsValue) {
    EXPECT_EQ(value(*mCommand), "0") << "no template";
    FGenIntResultsFile* file = FGenIntResultsFile::create("out");
    mEditor.mFile = FExpr<FGenIntResultsFile>(file);
    file->addValue("a", 0, 0, "", "Last", true, FExpr<FUnsigned>(new FUnsigned(7)));
    EXPECT_EQ(value(*mCommand), "7");
    EXPECT_TRUE(FAttribCmdSetAverageRows::null());
}
