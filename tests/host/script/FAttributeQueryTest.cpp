#include "host/core/FInitPrototype.h"
#include "host/script/FAttributeQuery.h"
#include "host/script/FCmdManager.h"
#include "tests/host/core/FThing.h"
#include "tests/support/FModelTest.h"

namespace {

/** A class with attributes of all presentations. */
class FPresented : public FClass<FPresented, FManaged> {
 public:
    static FClassData mClass;

    explicit FPresented(const QString& name = QString()) : FClass(name) {}

    void setNumber(double number) { mNumber = number; }
    double getNumber() const { return mNumber; }
    void setValue(const FKeptExpression& value) { mValue = value.expression; }
    FExpr<FObject> getValue() const { return {mValue}; }

 private:
    static void commands(FCmdTable& table);

    double mNumber = 0;
    FExprBase mValue;
};

/** A derived class that hides an attribute of its base and adds one. */
class FPresentedBelow : public FClass<FPresentedBelow, FPresented> {
 public:
    static FClassData mClass;

    explicit FPresentedBelow(const QString& name = QString()) : FClass(name) {}

 private:
    static void commands(FCmdTable& table);
};

FCmdTable& number(FCmdTable& table, const char* name) {
    return table.attribute<FPresented>(name, &FPresented::setNumber, &FPresented::getNumber, {"number"});
}

void FPresented::commands(FCmdTable& table) {
    number(table, "late").category("Solver").weight(2).attrRequiredCmd("receiver.getNumber() > 1");
    number(table, "expert").category("Solver").weight(1).userLevel(2).attrRequiredCmd("true");
    number(table, "early").category("Solver").weight(-1).attrRequiredCmd("receiver.getNumbr()");
    number(table, "alsoEarly").category("Solver").weight(-1).systemFlag(3).attrRequiredCmd("7");
    number(table, "unseen").hidden();
    number(table, "plain");
    table.attribute<FPresented>("setValue", &FPresented::setValue, &FPresented::getValue, {"value"});
    table.member<FPresented>("getNumber", &FPresented::getNumber).query().menuEntry("Second", 2);
    table
        .member<FPresented>(
            "stop", +[](FPresented&) {})
        .menuEntry("First", 1)
        .systemFlag(2);
    table.member<FPresented>(
        "noEntry", +[](FPresented&) {});
}

void FPresentedBelow::commands(FCmdTable& table) {
    number(table, "own").category("A");
    table.hideInherited("FAttribCmdFPresentedplaindouble");
}

FClassData FPresented::mClass("FPresented", &FManaged::mClass, &FPresented::commands);
FClassData FPresentedBelow::mClass("FPresentedBelow", &FPresented::mClass, &FPresentedBelow::commands);
const FInitPrototypes<FPresented, FPresentedBelow> types;

class FAttributeQueryTest : public FDirectTest {
 protected:
    FAttributeQueryTest() {
        base->registerObject();
        below->registerObject();
    }

    static QString names(const FAttributeQuery::Rows& rows) {
        QStringList names;
        for (const FCmdRow* row : rows) {
            names.append(row->name);
        }
        return names.join(' ');
    }
    static const FCmdRow& row(const char* name) {
        return *FCmdManager::instance()->findMembers(FPresented::mClass, name).front();
    }
    FAttributeQuery on(const QString& receiver) const { return FAttributeQuery(evaluate(receiver)); }

    FPresented* base = new FPresented("base");
    FPresentedBelow* below = new FPresentedBelow("below");
};

TEST_F(FAttributeQueryTest, attributesAreSharedFilteredAndOrdered) {
    const FAttributeQuery::Filter user{1, 2};
    EXPECT_EQ(names(on("base").getAttributes()), "plain setValue early alsoEarly expert late");
    EXPECT_EQ(names(on("below").getAttributes()), "setValue own early alsoEarly expert late");
    EXPECT_EQ(names(on("[base, below, [base, NULL]]").getAttributes()), "setValue early alsoEarly expert late");
    EXPECT_EQ(names(on("base").getAttributes(user)), "plain setValue early late");
    FThing::create("other");
    for (const char* receiver : {"[base, other]", "[]", "NULL", "[NULL]", "7"}) {
        EXPECT_EQ(names(on(receiver).getAttributes()), "") << receiver;
    }
}

TEST_F(FAttributeQueryTest, menuMembersComeInOrderOfPlace) {
    EXPECT_EQ(names(on("[base, below]").getMenuMembers({})), "stop getNumber");
    EXPECT_EQ(names(on("below").getMenuMembers({0, 1})), "getNumber");
}

TEST_F(FAttributeQueryTest, requiredIsWhatAConditionOnTheReceiverGives) {
    const FAttributeQuery both = on("[base, below]");
    EXPECT_TRUE(both.isRequired(row("expert")));
    EXPECT_FALSE(both.isRequired(row("late")));
    EXPECT_FALSE(both.isRequired(row("plain")));
    EXPECT_FALSE(on("[]").isRequired(row("expert")));
    EXPECT_TRUE(log().isEmpty()) << logText();
    below->setNumber(2);
    EXPECT_TRUE(both.isRequired(row("late"))) << "one of the objects requires it";
    EXPECT_FALSE(on("base").isRequired(row("late")));

    EXPECT_FALSE(on("below").isRequired(row("early")));
    EXPECT_FALSE(on("below").isRequired(row("alsoEarly")));
    ASSERT_EQ(log().size(), 2) << logText();
    EXPECT_TRUE(log().at(0).startsWith("error: FAttribCmdFPresentedearlydouble: can't tell")) << logText();
    EXPECT_TRUE(log().at(1).contains("\"7\"") && log().at(1).contains("neither true nor false")) << logText();
}

TEST_F(FAttributeQueryTest, aKeptExpressionIsFoundUnevaluated) {
    const FCmdRow& value = row("setValue");
    EXPECT_TRUE(FAttributeQuery::keepsExpression(value));
    EXPECT_FALSE(FAttributeQuery::keepsExpression(row("plain")));
    EXPECT_EQ(on("base").getExpression(value)->text, "NULL");

    ASSERT_TRUE(run("base.setValue(2*below.getNumber())\nbelow.setValue(2*below.getNumber())"));
    const auto common = on("[base, below]").getExpression(value);
    ASSERT_TRUE(common);
    EXPECT_EQ(common->text, "2*below.getNumber()");
    EXPECT_TRUE(common->handle.isCmd());
    EXPECT_EQ(common->handle, base->getValue());

    ASSERT_TRUE(run("below.setValue(\"a\\\"b\")"));
    EXPECT_EQ(on("below").getExpression(value)->text, "\"a\\\"b\"");
    EXPECT_FALSE(on("[base, below]").getExpression(value)) << "the objects' expressions differ";
    EXPECT_FALSE(on("[base, 7]").getExpression(value));
    EXPECT_FALSE(on("[]").getExpression(value));
    EXPECT_FALSE(on("base").getExpression(row("plain")));
}

}  // namespace
