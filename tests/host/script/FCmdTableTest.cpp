#include "host/core/FHistory.h"
#include "host/core/FImmediateUpdateBlocker.h"
#include "host/core/FInitPrototype.h"
#include "host/script/FCmdReference.h"
#include "host/script/FCmdTable.h"
#include "host/script/FProject.h"
#include "tests/support/FModelTest.h"
#include "tests/support/FTestFolder.h"

namespace {

/** A class with attributes that are declared in its command table and nowhere else. */
class FDeclared : public FClass<FDeclared, FManaged> {
 public:
    static FClassData mClass;

    explicit FDeclared(const QString& name = QString()) : FClass(name) {}
    FObject* clone() const override {
        auto* copy = new FDeclared(getName());
        copy->registerObject();
        copy->copyAttributes(mClass, *this);
        return copy;
    }

    QString mComment = "none";
    QStringList mTags;
    double mWeight = 1;

 private:
    static void declareCommands(FCmdTable& table) {
        using F = FDeclared;
        table.creator(
            "declared", +[](const FNewName& name) {
                auto* made = new F(name.name);
                made->registerObject();
                return made;
            });
        table.plain<F>("setComment", &F::mComment, {"comment"}).copied().attrName("Comment");
        table.plain<F>("setTags", &F::mTags, {"tags"}).marksClients(false);
        table.plain<F>("setWeight", +[](F& object) -> double& { return object.mWeight; }, {"weight"})
            .accepts(+[](const double& weight) { return weight > 0 ? QString() : QStringLiteral("too light"); });
    }
};

FClassData FDeclared::mClass("FDeclared", &FManaged::mClass, &FDeclared::declareCommands);
const FInitPrototypes<FDeclared> types;

class FCmdTableTest : public FModelTest, public FTestFolder {};

TEST_F(FCmdTableTest, aPlainAttributeNeedsOneDeclaration) {
    ASSERT_TRUE(run("declared a()\nparameter p(getAttribute(a, \"setWeight\"))"));
    auto* a = object<FDeclared>("a");
    const auto attribute = [](const QString& name) { return textOf("getAttribute(a, \"" + name + "\")"); };
    EXPECT_TRUE(run("a.setComment(\"heavy \\\"one\\\"\")\na.setTags([\"x\", \"y\"])\na.setWeight(2.5)"));
    EXPECT_EQ(attribute("setComment"), "heavy \"one\"");
    EXPECT_EQ(attribute("setTags"), "[x,y]");
    EXPECT_EQ(textOf("p + 0"), "2.5");
    {
        const FImmediateUpdateBlocker blocker;
        EXPECT_TRUE(run("a.setTags([])\na.setWeight(2.5)"));
        EXPECT_FALSE(a->isOutOfDate()) << "tags mark nothing, and an equal value changes nothing";
        EXPECT_TRUE(run("a.setComment(\"\")"));
        EXPECT_TRUE(a->isOutOfDate());
    }
    EXPECT_TRUE(run("undo()"));

    const int steps = FHistory::instance()->getLabels().size();
    EXPECT_TRUE(run("a.setWeight(-1)"));
    EXPECT_TRUE(logHolds("too light. It stays unchanged")) << logText();
    EXPECT_EQ(FHistory::instance()->getLabels().size(), steps);
    EXPECT_TRUE(run("undo()\nundo()"));
    EXPECT_EQ(attribute("setWeight"), "1");
    EXPECT_EQ(attribute("setTags"), "[x,y]");
    EXPECT_TRUE(run("redo()"));

    {
        const FHistoryBlocker blocker;
        const FExprBase copy(a->clone());
        const auto* other = dynamic_cast<FDeclared*>(copy.getStored());
        EXPECT_EQ(other->mComment, "heavy \"one\"");
        EXPECT_EQ(other->mTags, QStringList()) << "isn't declared as copied";
    }
    const QString before = savedModel();
    ASSERT_TRUE(FProject::instance()->save(path("p.mrx")));
    ASSERT_TRUE(FProject::instance()->open(path("p.mrx"), false)) << logText();
    EXPECT_EQ(savedModel().toStdString(), before.toStdString());
    EXPECT_TRUE(before.contains(".setTags([\"x\",\"y\"]);\n    .setWeight(2.5);"));
    EXPECT_TRUE(FCmdReference("FDeclared").toText().contains(".setWeight(double weight)"));
    FProject::instance()->create();
}

}  // namespace
