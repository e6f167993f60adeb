#include "tests/support/FModelTest.h"

namespace {

class FStringTest : public FModelTest {};

TEST_F(FStringTest, textsAnswerQueries) {
    const struct {
        const char* query;
        const char* answer;
    } cases[] = {
        {"\"NOT CONVERGED\".contains(\"CONV\")", "true"},
        {"\"NOT CONVERGED\".contains(\"conv\")", "false"},
        {"\"ab\".length()", "2"},
        {"\"\".length()", "0"},
        {"\"abcab\".find(\"ab\")", "0"},
        {"\"abcab\".find(\"ab\", 1)", "3"},
        {"\"abcab\".find(\"ab\", 4)", "-1"},
        {"\"ab\".find(\"a\", 4294967295)", "-1"},
        {"\"4.2;7;;9\".split(\";\")", "[4.2,7,,9]"},
        {"\"  a \t b\".split()", "[a,b]"},
        {"\"\".split().count()", "0"},
        {"fileName(\"a.txt\").contains(\".txt\")", "true"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(textOf(row.query), row.answer) << row.query;
    }
}

}  // namespace
