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

class FAttribCmdSetAverageRowsTest : public FDirectTest {
 protected:
    void set(const FExprBase& argument) {
        mCommand->setArguments({argument});
        mCommand->setOutOfDate(true);
        EXPECT_TRUE(mCommand->update());
    }
    QString value() const {
        FExprBase current;
        mCommand->getAttrValue(current);
        return current.toString();
    }

    FProbeEditor mEditor;
    FAttribCmdSetAverageRows* mCommand = new FAttribCmdSetAverageRows(&mEditor);
    FExprBase mKeep{mCommand};
};

}  // namespace

TEST_F(FAttribCmdSetAverageRowsTest, tellsItsEditorAndShowsItsValue) {
    set(FExprBase(new FUnsigned(3)));
    set(FExprBase(new FInteger(4)));
    set(FExprBase(FNull::null()));
    EXPECT_EQ(mEditor.mCalls, QStringList({"3", "4", "NULL"}));
    set(FExprBase(new FString("5")));
    EXPECT_TRUE(run("parameter n(6)"));
    FExprBase expression;
    for (const char* text : {"n", "n+1"}) {
        expression.resolve(text);
        set(expression);
    }
    EXPECT_EQ(mEditor.mCalls, QStringList({"3", "4", "NULL", "5", "n", "n+1"}));
    set(FExprBase(new FDouble(1.5)));
    set(FExprBase(new FString("x")));
    set(FExprBase());
    EXPECT_EQ(mEditor.mCalls.size(), 6) << "what is no number of rows changes nothing";

    EXPECT_EQ(value(), "0") << "no template";
    FGenIntResultsFile* file = FGenIntResultsFile::create("out");
    mEditor.mFile = FExpr<FGenIntResultsFile>(file);
    file->addValue("a", 0, 0, "", "Last", true, FExpr<FUnsigned>(new FUnsigned(7)));
    EXPECT_EQ(value(), "7");
}
