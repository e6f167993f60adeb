#include "genericintegration/templates/FGenIntCommandFile.h"
#include "genericintegration/templates/FGenIntFile.h"
#include "host/core/FHistory.h"
#include "host/core/FMerixCtrl.h"
#include "tests/support/FModelTest.h"
#include "tests/support/FTestFolder.h"

namespace {

class FGenIntFileTest : public FDirectTest {
 protected:
    FGenIntCommandFile* file = FGenIntCommandFile::create(QStringLiteral("in1"));
};

TEST_F(FGenIntFileTest, storedFormKeepsEveryText) {
    EXPECT_EQ(file->getContent(), "[B64]");
    EXPECT_EQ(file->setContent(file->getContent())->getPlainContent(), "");
    const QStringList texts{"a <entry>x</entry>\r\nb\n",
                            QString::fromUtf8("Größe \u20ac \\n"),
                            QString(QLatin1String("nul\0l", 5)),
                            "\uFEFF\uFEFFa",
                            "[B64",
                            "\"quoted\" \\"};
    for (const QString& text : texts) {
        file->setContent(text);
        const QString stored = file->getContent();
        file->setContent(QStringLiteral("other"));
        EXPECT_EQ(file->setContent(stored)->getPlainContent(), text);
    }
    // A plain text that begins with the mark can't be held, and damaged Base64 isn't refused.
    EXPECT_EQ(file->setContent("[B64]YWJj")->getPlainContent(), "abc");
    EXPECT_EQ(file->setContent("[B64]YW!Jj")->getPlainContent(), "abc");
}

TEST_F(FGenIntFileTest, lineFeedsOfOldProjectsAreReadOnlyWhileLoading) {
    EXPECT_EQ(file->setContent("a\\nb")->getPlainContent(), "a\\nb");
    const QString stored = file->getContent();
    const FProjectLoading loading;
    EXPECT_EQ(file->setContent("a\\nb")->getPlainContent(), "a\nb");
    EXPECT_EQ(file->setContent(stored)->getPlainContent(), "a\\nb");
}

TEST_F(FGenIntFileTest, everySetContentIsAStepAndMarks) {
    file->setContent("x");
    file->setContentAltered(false);
    file->setOutOfDate(false);
    const int steps = FHistory::instance()->getLabels().size();
    file->setContent("x");
    EXPECT_EQ(FHistory::instance()->getLabels().mid(steps), QStringList{"set content"});
    EXPECT_TRUE(file->wasContentAltered() && file->isOutOfDate());
}

TEST_F(FGenIntFileTest, initFromFileTakesTextAndNames) {
    const FTestFolder folder;
    file->initFromFile(folder.path("missing.inp"));
    EXPECT_EQ(file->getFileName(), "");
    file->initFromFile(folder.write("beam.inp", "a\r\nb\nc \xff d\n"));
    EXPECT_EQ(file->getPlainContent(), QString::fromUtf8("a\r\nb\nc \ufffd d\n"));
    EXPECT_EQ(file->getFileName(), "beam.inp");
    EXPECT_EQ(file->getName(), "beam_inp");
    EXPECT_TRUE(logHolds("isn't valid UTF-8 in line 3"));
    // A file that was cut within a character.
    file->initFromFile(folder.write("cut.inp", "a\ncaf\xc3"));
    EXPECT_EQ(file->getPlainContent(), QString::fromUtf8("a\ncaf\ufffd"));
    EXPECT_TRUE(logHolds("cut.inp\" isn't valid UTF-8 in line 2"));
}

}  // namespace
