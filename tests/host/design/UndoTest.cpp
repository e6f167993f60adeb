#include "tests/support/FUndoTest.h"

namespace {

class UndoTest : public FUndoTest {
 protected:
    QStringList beginning() const override {
        // An owner takes its friend along when it goes.
        return {"thing t0(1)", "thing t1(2) { .setFriend(t0) .setText(\"owner\") }", "parameter t4(2)",
                "notingDefinition t2() { .addEntry(\"a\", 1) .addEntry(\"G|b\", \"x\") .addEntry(\"n\", 2, 5, 1) }",
                "notingConfiguration t3() { .setDefinition(t2) .setEntryValue(\"a\", t4 * 3) }"};
    }
};

TEST_F(UndoTest, everyStateComesBack) {
    everyStateComesBack();
}

TEST_F(UndoTest, memoryStaysWithinTheLimit) {
    memoryStaysWithinTheLimit();
}

TEST_F(UndoTest, projectsComeBack) {
    projectsComeBack();
}

}  // namespace
