#pragma once

/**
 * "first" writes a number to a file, which "second" reads and squares, and "third" gets that square as the value of an
 * entry, whose default names a template of its own. "apart" uses only "first", and "alone" nothing.
 */
inline const char* const chainOfThree = R"(
genericIntegrationCommandFile in1() { .setContent("x=<entry>x</entry>") .setFileName("in.txt") }
genericIntegrationResultsFile out1() {
    .setFileName("first.txt") .setValues([["v", 0, 0, "v ", First, "FDouble", "", 0, NULL]])
}
genericIntegrationDefinition def1() { .addEntry("x", 2) .addEntry("file", resultsFileName("first.txt")) 
    .setFiles([in1, out1]); .setCurFile(out1)
}
genericIntegrationConfiguration conf1() { .setDefinition(def1); .setEntryValue("x", 3) }
genericIntegrationComputation first() {
    .setConfiguration(conf1); .setExecutable("sh"); .setArguments(["-c", ". ./in.txt; echo v $x > first.txt"])
}
first.openSoftwareConnector()
first_connector.setItemSize("Large")

genericIntegrationResultsFile out2() {
    .setFileName("second.txt") .setValues([["v", 0, 0, "v ", First, "FDouble", "", 0, NULL]])
}
genericIntegrationDefinition def2() { .addEntry("data", inputFile("none")) .setFiles([out2]); .setCurFile(out2) }
genericIntegrationConfiguration conf2() {
    .setDefinition(def2)
    .setEntryValue("data", inputFile(first.getResults().getResultFileName("file")))
}
genericIntegrationComputation second() {
    .setConfiguration(conf2); .setExecutable("sh")
    .setArguments(["-c", "read v x < first.txt; echo v $((x*x)) > second.txt"])
}
second.openSoftwareConnector()

genericIntegrationCommandFile in3() { .setContent("x=<entry>x</entry>") .setFileName("in.txt") }
genericIntegrationResultsFile out3() {
    .setFileName("third.txt") .setValues([["v", 0, 0, "v ", First, "FDouble", "", 0, NULL]])
}
genericIntegrationDefinition def3() { .addEntry("x", 0) .addEntry("note", "é") .setFiles([in3, out3]); .setCurFile(in3) }
genericIntegrationConfiguration conf3() {
    .setDefinition(def3)
    .setEntryValue("x", second.getResults().getTable("second.txt").getElementAt("v"))
}
genericIntegrationComputation third() {
    .setConfiguration(conf3); .setExecutable("sh"); .setArguments(["-c", ". ./in.txt; echo v $((x+1)) > third.txt"])
}

genericIntegrationDefinition def4() { .addEntry("data", inputFile("none")) }
genericIntegrationConfiguration conf4() {
    .setDefinition(def4)
    .setEntryValue("data", inputFile(first.getResults().getResultFileName("file")))
}
genericIntegrationComputation apart() { .setConfiguration(conf4) }
genericIntegrationDefinition def5() {}
genericIntegrationConfiguration conf5() { .setDefinition(def5) }
genericIntegrationComputation alone() { .setConfiguration(conf5) }
)";
