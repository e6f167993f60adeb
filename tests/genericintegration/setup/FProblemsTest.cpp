#include "host/run/FSetUpCheck.h"
#include "tests/genericintegration/setup/FIntegrationTest.h"

namespace {

/** A change of the set-up, and the problems that it causes: "severity place-or-object: … text … remedy …". */
struct Case {
    const char* name;
    const char* change;
    QStringList problems;

    friend void PrintTo(const Case& problem, std::ostream* stream) { *stream << problem.name; }
};

class FProblemsTest : public FIntegrationTest, public testing::WithParamInterface<Case> {
 public:
    FProblemsTest() {
        EXPECT_TRUE(run(R"(
def.addEntry("length", 12.5).addEntry("pump|shutoff", "30").removeEntry("x")
input.setContent("L <entry>length</entry>, 1
P=<entry>pump|shutoff</entry> m
end")
def.setFiles([input, square, console])
)")) << logText();
    }

 protected:
    static QStringList problems(bool mayReadFiles = true, const char* name = "comp") {
        QStringList lines;
        for (const FSetUpProblem& problem : FSetUpCheck::problemsOf(*computation(name), mayReadFiles)) {
            const QString place = problem.place.isEmpty() ? problem.object : problem.place;
            lines.append(problem.severityName() + ' ' + place + ": " + problem.text + ". " + problem.remedy);
        }
        return lines;
    }
    /** Whether the text has the parts, which "…" separates, in this order. */
    static bool matches(const QString& text, const QString& parts) {
        int position = 0;
        for (const QString& part : parts.split(QStringLiteral(" … "))) {
            position = text.indexOf(part, position);
            if (position < 0) {
                return false;
            }
            position += part.size();
        }
        return true;
    }
};

TEST_P(FProblemsTest, areFound) {
    ASSERT_EQ(problems(), QStringList());
    ASSERT_TRUE(run(GetParam().change)) << logText();
    const QStringList found = problems();
    ASSERT_EQ(found.size(), GetParam().problems.size()) << found.join('\n').toStdString();
    for (int i = 0; i < found.size(); ++i) {
        EXPECT_TRUE(matches(found[i], GetParam().problems[i])) << found[i].toStdString();
    }
    EXPECT_FALSE(found.isEmpty());
}

const std::vector<Case> cases{
    {"unclosedTag",
     R"(input.setContent("<entry>length</entry>
P=<entry>pump|shutoff
end
"))",
     {"error input:2:3: the tag \"<entry>pump|shutoff\" isn't closed … 2 lines … missing in sub/in.txt … </entry>"}},
    {"unclosedTagBeforeAnother",
     R"(input.setContent("P=<entry>pump|shutoff
x
L <entry>length</entry>
end"))",
     {"error input:1:3: the tag \"<entry>pump|shutoff\" isn't closed … line 3"}},
    {"misspelledTag",
     R"(input.setContent("<entry>length</entry><entry>pump|shutoff</entry>

L <entry>lenght</entry> <entry>lenght</entry>"))",
     {"error input:3:3: the tag \"<entry>lenght</entry>\" names no entry … Did you mean \"<entry>length</entry>\"?"}},
    {"blanksIndexAndFileInTags",
     R"(input.setContent("<entry> length </entry><entry>pump[0]|shutoff</entry>
<entry>Out.txt</entry>"))",
     {"error input:1:1: the tag \"<entry> length </entry>\" names no entry with blanks around its name … Write "
      "\"<entry>length</entry>\"",
      "error input:1:24 … Write \"<entry>pump|shutoff</entry>\"",
      "error input:2:1 … Write \"<entry>Exports|Out.txt</entry>\"",
      "warning def: no input template has a tag of these 2 entries: \"length\", \"pump|shutoff\""}},
    {"misspelledMarker",
     R"(input.setContent("<entry>length</entry> <tag> <entity> <entyr>
<entry>pump|shutoff</entry>"))",
     {"warning input:1:38: \"<entyr>\" looks like a part of a tag"}},
    {"loneMarkers",
     R"(input.setContent("<entry>length</entry> mm</entry> <entri>
<entry>pump|shutoff</entry>"))",
     {"warning input:1:25: \"</entry>\" closes no tag", "warning input:1:34: \"<entri>\" looks like a part of a tag"}},
    {"tagInCapitals",
     R"(input.setContent("<entry>length</entry>
 <ENTRY>pump|shutoff</ENTRY>"))",
     {"warning input:2:2: the tag \"<ENTRY>pump|shutoff</ENTRY>\" is spelled in capitals … small letters"}},
    {"entryWithoutTag",
     R"(def.addEntry("width", 2))",
     {"warning def: no input template has a tag of the entry \"width\" … <entry>width</entry>"}},
    {"sameValueNames",
     R"(square.setValues([["f", 0, 0, "f ", First, "FDouble", ""], ["f", 1, 0, "f ", First, "FDouble", ""]]))",
     {"warning square: values 0 and 1 have the name \"f\" … setValues"}},
    {"lineAsText",
     R"(square.setValues([["f", "-1", 0, "f ", First, "FDouble", ""], ["g", NULL, 1, "f ", First, "FDouble", ""]]))",
     {"error square: value 0, \"f\", has the line \"-1\", which isn't a number … setValues",
      "error square: value 1, \"g\", has the line NULL"}},
    {"fractionalAndNegativeColumns",
     R"(square.setValues([["f", 0, 1.5, "", First, "FDouble", ""], ["g", 0, -1, "", First, "FDouble", ""]]))",
     {"error square: value 0, \"f\", has the column 1.5", "error square: value 1, \"g\", has the column -1"}},
    {"listAsValue",
     R"(conf.setEntryValue("length", [1, 2]))",
     {"error input:1:3: the entry \"length\" holds a list … SHOULD_BE_EXPORTED … setEntryValue(\"length\""}},
    {"objectAsValue",
     R"(conf.setEntryValue("length", def))",
     {"error input:1:3: the entry \"length\" holds an object (FDefinitionGenInt) … SHOULD_BE_EXPORTED"}},
    {"nullAsValue",
     R"(conf.setEntryValue("length", NULL))",
     {"error input:1:3: the entry \"length\" is NULL … SHOULD_BE_EXPORTED … setEntryValue(\"length\""}},
    {"notANumber",
     R"(conf.setEntryValue("length", sqrt(-1)))",
     {"warning input:1:3: the entry \"length\" is not a number (NaN)"}},
    {"infinite", R"(conf.setEntryValue("length", 1 / 0))", {"warning input:1:3: the entry \"length\" is infinite"}},
    {"namesOfFilesThatDontExist",
     R"(comp.setStandardInput("nofile.txt"); comp.setOptionalFiles(["Out.tx", "stdout.txt"])
comp.setRequiredValues(["mas", "f", "*"]))",
     {"error comp: the file of the standard input, \"nofile.txt\", is none that a run writes",
      "warning comp: no result template reads the optional file \"Out.tx\" … Did you mean \"Out.txt\"",
      "error comp: no result template has the required value \"mas\""}},
    {"anchorNotInSample",
     R"(square.setValues([["f", 0, 0, "F ", First, "FDouble", ""], ["g", 0, 1, "force", First, "FDouble", ""]]))",
     {"warning square: value 1, \"g\", has the anchor \"force\", which isn't in the template's sample"}},
    {"noFiles", "def.setFiles([])", {"warning def: the definition has no files … setFiles"}},
    {"noFileNames",
     R"(input.setFileName(""); square.setFileName(""))",
     {"error input: the input template has no file name … setFileName",
      "error square: the result template has no file name … setFileName"}},
    {"noDefinition", "conf.setDefinition(NULL)", {"error conf: the configuration has no definition … setDefinition"}},
    {"noConfiguration",
     "comp.setConfiguration(NULL)",
     {"error comp: the computation has no configuration … setConfiguration"}},
    {"separatorWithoutEffect",
     R"(square.setRegExprSeparator(";"))",
     {"warning square: the separator \";\" has no effect … setNumberSeparator(false)"}},
    {"blanksWithoutEffect",
     R"(square.setSpacesAndTabsSeparator(true))",
     {"warning square: the separator of spaces and tabs has no effect"}},
    {"noSeparator",
     "square.setNumberSeparator(false)",
     {"error square: neither numbers … nor is there a separator … setNumberSeparator(true)"}},
    {"foreignBytes",
     "input.setContent(\"L <entry>length</entry>\nl\uFFFDnge <entry>pump|shutoff</entry>\")",
     {"warning input:2:2: the sample has bytes that aren't UTF-8 … as UTF-8"}},
    {"nulInSample",
     R"(input.setContent("[B64]TCA8ZW50cnk+bGVuZ3RoPC9lbnRyeT4gPGVudHJ5PnB1bXB8c2h1dG9mZjwvZW50cnk+CgB4"))",
     {"error input:2:1: the sample has a NUL character; it and all text after it are missing in sub/in.txt"}},
    {"averagesOverNoRows",
     R"(square.setValues([["a", 0, 0, "", Last, "FDouble", "", true, 0], ["b", true, 0, "", Last, "FDouble", "", true, 1],
["c", 0, 0, "", Last, "FDouble", "", true]]))",
     {"error square: value 0, \"a\", is an average over no rows … from 1",
      "error square: value 2, \"c\", is an average"}},
    {"unknownImportType",
     R"(square.setValues([["a", 0, 0, "", Last, "FFileName", "tecplt"]]))",
     {"warning square: value 0, \"a\", has the import type \"tecplt\", which isn't known … \"tecplot\""}},
    {"tooLongForFixedColumns",
     R"(input.setContent("L   <entry>length</entry>  0.5 <entry>pump|shutoff</entry>")
conf.setEntryValue("length", 123.456); conf.setEntryValue("pump|shutoff", "300"))",
     {"warning input:1:5: the entry \"length\" is written as \"123.456\" … default, \"12.5\" … as wide as its column"}},
    {"paddedForFixedColumns",
     R"(input.setContent("L   <entry>length</entry>  0.5 <entry>pump|shutoff</entry> m")
conf.setEntryValue("length", format(2500, "%8.1f")); conf.setEntryValue("pump|shutoff", format(log(-1), "%8.1f")))",
     {"warning input:1:32: the entry \"pump|shutoff\" is not a number (NaN), and \"     nan\" is written"}},
    {"otherSpellingOfANumber",
     R"(def.addEntry("grade", 0)
input.setContent("L   <entry>length</entry>  0.5 <entry>grade</entry>  7 <entry>pump|shutoff</entry>  0.5")
conf.setEntryValue("length", "1.2500e+01"); conf.setEntryValue("grade", "STEEL")
conf.setEntryValue("pump|shutoff", "ALUMINIUM"))",
     {"warning input:1:56: the entry \"pump|shutoff\" is written as \"ALUMINIUM\", which is longer"}},
    {"otherWidthBeforeAWord",
     R"(def.removeEntry("pump|shutoff").addEntry("pump|shutoff", "  30")
input.setContent("L <entry>length</entry>STEEL
<entry>pump|shutoff</entry> m")
conf.setEntryValue("length", 123.456); conf.setEntryValue("pump|shutoff", 30))",
     {"warning input:1:3: the entry \"length\" is written as \"123.456\", which is longer",
      "warning input:2:1: the entry \"pump|shutoff\" is written as \"30\", which is shorter … 4 characters"}},
    {"blanksBetweenFields",
     R"(input.setContent("1 <entry>length</entry> <entry>pump|shutoff</entry> 0.5 <a><entry>length</entry></a> <entry>length</entry>mm")
conf.setEntryValue("length", 123.456); def.addEntry("width", 2))",
     {"warning def: no input template has a tag of the entry \"width\""}},
    {"entriesThatDifferInCase",
     R"(def.addEntry("LENGTH", 5))",
     {"warning conf: no file gets the value of \"length\": its tags mean \"LENGTH\" … Rename"}},
    {"furtherOccurrence",
     R"(def.addEntry("n", 2, 5, 1)
input.setContent("<entry>length</entry>, <entry>pump|shutoff</entry>, <entry>n</entry>")
conf.setEntryValue("n[1]", 3))",
     {"warning conf: no file gets the value of \"n[1]\", because tags name the first occurrence only"}},
    {"noProgram",
     R"(comp.setExecutable("no-such-solver"))",
     {"error comp: The program 'no-such-solver' was not found … Install it"}},
    {"shellWords",
     R"(comp.setArguments(["-v", "<", "a.in", "|", "bc"]))",
     {"warning comp: … \"<\" … setStandardInput", "warning comp: … \"|\" … \"-c\""}},
    {"programNotSet", R"(comp.setExecutable(""))", {"error comp: No program is given. Set it with setExecutable"}},
    {"namesThatLeadOut",
     R"(input.setFileName("../in.txt"); square.setFileName("../Out.txt"); comp.setStandardInput("../a")
conf.setEntryValue("length", resultsFileName("../cp.dat")))",
     {"error comp: The file of the standard input, '../a', is outside",
      "error input: the input template has the file name \"../in.txt\", which leads out of the folder of the run",
      "error square: the result template has the file name \"../Out.txt\", which leads out",
      "error conf: the entry \"length\" names \"../cp.dat\""}},
    {"absoluteNamesAndFolders",
     R"(input.setFileName("/tmp/in.txt"); square.setFileName("/tmp/Out.txt"); console.setFileName("."))",
     {"error input: the input template has the file name \"/tmp/in.txt\", which is an absolute path … setFileName",
      "error square: the result template has the file name \"/tmp/Out.txt\", which is an absolute path",
      "error console: the result template has the file name \".\", which is a folder"}},
    {"linksToNothing",
     R"(def.addEntry("mesh", inputFile("no-such.mesh")).addEntry("other", inputFile("")))",
     {"error conf: the entry \"mesh\" links to a file that doesn't exist: /",
      "error conf: the entry \"other\" links to no file"}},
    {"textInPlaceOfAFile",
     R"(def.addEntry("mesh", inputFile("a.msh")).addEntry("none", inputFile("b.msh"))
conf.setEntryValue("mesh", "c.msh"); conf.setEntryValue("none", NULL))",
     {"warning conf: the entry \"mesh\" is \"c.msh\", which is no file, while its default is an input file … "
      "inputFile("}},
    {"filesThatReplaceOthers",
     R"(point p()
def.addEntry("edge", geometryExport("sub/in.txt", 0, [p])).addEntry("tip", geometryExport("./a.csv", 0, [p]))
def.addEntry("top", geometryExport("a.csv", 0, [p]));
console.setFileName("a.csv"))",
     {"error conf: the entry \"edge\" writes \"sub/in.txt\" … as the input template \"input\" does",
      "error conf: the entry \"edge\" exports nothing … ends neither in .csv",
      "error conf: the entry \"top\" writes \"a.csv\" … as the entry \"tip\" does",
      "warning console: it reads a.csv, which the entry \"tip\" writes before the program starts"}},
    {"resultTemplatesOfOneFile",
     R"(console.setFileName("OUT.txt"))",
     {"warning console: it reads OUT.txt, as \"square\" does … getTableAt(1)"}},
    {"inputTemplatesOfOneFile",
     R"(genericIntegrationCommandFile twin() { .setFileName("sub/in.txt") }
def.setFiles([input, twin, square, console]))",
     {"error twin: it writes sub/in.txt, as \"input\" does"}},
};

INSTANTIATE_TEST_SUITE_P(, FProblemsTest, testing::ValuesIn(cases),
                         [](const auto& test) { return std::string(test.param.name); });

class FProblemsOfRunsTest : public FProblemsTest {};

TEST_F(FProblemsOfRunsTest, areLoggedOnceForEachSetUp) {
    ASSERT_TRUE(run(R"(
conf.setEntryValue("length", NULL)
input.setContent("<entry>length</entry> <entry>lenght</entry> <entry>pump|shutoff</entry>")
comp.setArguments(["-c", "echo f 1 > Out.txt"])
for (i in [1, 2, 3]) { comp.run() }
)"));
    EXPECT_EQ(log().filter("names no entry").size(), 1) << logText();
    EXPECT_EQ(log().filter("is NULL, and").size(), 1) << logText();
    EXPECT_EQ(log().filter("Entry lenght is not part of configuration conf").size(), 3) << "of the writer";

    ASSERT_TRUE(run(R"(
conf.setEntryValue("length", 1); comp.run()
conf.setEntryValue("length", NULL); comp.run()
input.setContent("<entry>length</entry>
<entry>lenght</entry>"); comp.run()
)"));
    EXPECT_EQ(log().filter("is NULL, and").size(), 1) << "values change in a loop\n" << logText();
    EXPECT_EQ(log().filter("names no entry").size(), 2) << "a new place\n" << logText();

    ASSERT_TRUE(run(R"(comp.setExecutable("no-such-solver"); comp.run())"));
    EXPECT_EQ(log().filter("'no-such-solver' was not found").size(), 1) << "the run reports it\n" << logText();
}

TEST_F(FProblemsOfRunsTest, nameTheTemplateWithAnAbsolutePath) {
    ASSERT_TRUE(run(R"(input.setFileName("/tmp/in.txt"); comp.run())"));
    EXPECT_EQ(log().filter("The input template \"input\" has the file name \"/tmp/in.txt\"").size(), 1) << logText();
    EXPECT_FALSE(QFileInfo::exists(path("study.results/baseline/comp/tmp")));
}

TEST_F(FProblemsOfRunsTest, warnOfFilesOfInvalidRuns) {
    ASSERT_TRUE(run(R"(
def.addEntry("cp", resultsFileName("cp.dat"))
comp.setArguments(["-c", "echo 1 > cp.dat; echo f 1 > Out.txt"])
genericIntegrationConfiguration linked() { .setDefinition(def) }
genericIntegrationComputation second() { .setConfiguration(linked) .setExecutable("sh") }
second.setArguments(["-c", "echo f 1 > Out.txt"])
comp.run()
linked.setEntryValue("cp", inputFile(comp.getResults().getResultFileName("cp")))
second.run()
)")) << logText();
    const QString warning = "links to a file of a run of comp that isn't valid (";
    EXPECT_EQ(log().filter(warning).size(), 0) << logText();
    ASSERT_TRUE(run(R"(conf.setEntryValue("length", 3); second.run())"));
    const QString earlier = "finished, of an earlier set-up (length was 12.5, is 3)): " + path("study.results");
    EXPECT_EQ(log().filter(warning + earlier).size(), 1) << logText();
    ASSERT_TRUE(run(R"(comp.setArguments(["-c", "echo 1 > cp.dat; exit 3"]); comp.run(); second.run())"));
    EXPECT_EQ(log().filter(warning + "failed): ").size(), 1) << logText();
}

TEST_F(FProblemsOfRunsTest, readResultsOnlyWhereThatIsAllowed) {
    ASSERT_TRUE(run(R"(
genericIntegrationConfiguration linked() { .setDefinition(def) }
linked.setEntryValue("length", comp.getResults().getTable("none").getElementAt("f"))
genericIntegrationComputation second() { .setConfiguration(linked) .setExecutable("sh") }
)")) << logText();
    // As long as there are no results, that is said once, and nothing is evaluated.
    ASSERT_TRUE(
        run(R"(linked.setEntryValue("pump|shutoff", comp.getResults().getTable("Out.txt").getElementAt("f") + 1))"));
    const int before = log().size();
    const QString need = "need results of comp, which has none yet";
    EXPECT_EQ(problems(false, "second").filter(need).size(), 1) << problems(false, "second").join('\n').toStdString();
    EXPECT_EQ(problems(true, "second").filter(need + ", and \"SHOULD_BE_EXPORTED\" is written").size(), 1);
    EXPECT_EQ(log().size(), before) << logText();

    ASSERT_TRUE(run(R"(comp.setArguments(["-c", "echo f 1 > Out.txt"]); comp.run())"));
    EXPECT_EQ(problems(false, "second"), QStringList());
    const int messages = log().size();
    EXPECT_EQ(problems(true, "second").filter("is NULL, and").size(), 1) << logText();
    EXPECT_GT(log().size(), messages) << "of the evaluation";
}

}  // namespace
