#include "host/core/FHistory.h"
#include "host/core/FQuotedText.h"
#include "host/core/FUserStep.h"
#include "host/design/FEntryDef.h"
#include "host/design/FGeometryExport.h"
#include "host/design/FInputFile.h"
#include "host/design/FParameter.h"
#include "host/design/FResultsFileName.h"
#include "tests/host/design/FEntryFixture.h"
#include "tests/support/FTestFolder.h"

namespace {

class FConfigurationTest : public FEntryFixture {};

TEST_F(FConfigurationTest, valuesKeepTheTypesOfTheirEntries) {
    run("conf.setEntryValue(\"height\", 7).setEntryValue(\"Geometry|span\", \"10m\")");
    EXPECT_EQ(values(), (QStringList{"10m", "7"}));
    EXPECT_EQ(evaluate("conf.getEntryValue(\"height\")").getObject()->getClass(), "FDouble");
    run("conf.setEntryValue(\"height\", NULL)");
    EXPECT_FALSE(evaluate("conf.getEntryValue(\"height\")").isValid());
    EXPECT_EQ(log(), QStringList());
}

TEST_F(FConfigurationTest, anUnknownPathIsToldWithTheNearestOne) {
    ASSERT_TRUE(
        run("r = conf.setEntryValue(\"Geometry|spam\", 1)\nif (r != NULL) { exit(1) }\n"
            "s = conf.getEntryValue(\"Height\")\nif (s != NULL) { exit(1) }"));
    EXPECT_EQ(log(), (QStringList{
                         "warning: test:1:10: setEntryValue: conf has no entry \"Geometry|spam\" (did you mean "
                         "\"Geometry|span\"?). The result is NULL",
                         "warning: test:3:10: getEntryValue: conf has no entry \"Height\" (did you mean \"height\"?). "
                         "The result is NULL"}));
}

TEST_F(FConfigurationTest, entriesCanDependOnTheirNeighbours) {
    ASSERT_TRUE(
        run("conf.setEntryValue(\"height\", 2*conf.getEntryValue(\"Geometry|span\"))\n"
            "parameter p(conf.getEntryValue(\"height\")+1)\ndef.addEntry(\"third\", 0)\n"
            "conf.setEntryValue(\"third\", p)"));
    EXPECT_EQ(values(), (QStringList{"10", "20", "21"}));
    run("conf.setEntryValue(\"Geometry|span\", 4)");
    EXPECT_EQ(values(), (QStringList{"4", "8", "9"}));
    // Each of these would close a cycle.
    for (const char* expression : {"conf.getEntryValue(\"third\")", "p", "conf.getEntryValue(\"Geometry|span\")"}) {
        ASSERT_TRUE(run(QStringLiteral("r = conf.setEntryValue(\"Geometry|span\", 1+%1)\nif (r != NULL) { exit(1) }")
                            .arg(QString::fromLatin1(expression))));
        EXPECT_TRUE(log().last().contains("entry \"Geometry|span\" would depend on itself")) << expression;
    }
    EXPECT_EQ(values(), (QStringList{"4", "8", "9"}));
    // A path that is itself an expression is seen through only when it is evaluated.
    run("parameter which(\"third\")\nconf.setEntryValue(\"Geometry|span\", conf.getEntryValue(which))");
    EXPECT_EQ(values().front(), "nothing");
    EXPECT_TRUE(logHolds("circular dependency"));
    run("conf.setEntryValue(\"height\", 5)\nwhich.setValue(\"height\")");
    EXPECT_EQ(values(), (QStringList{"5", "5", "6"}));
}

TEST_F(FConfigurationTest, aKeptQuestionFollowsTheStructure) {
    run("parameter p(conf.getEntryValue(\"new\"))");
    run("def.addEntry(\"new\", 8)");
    EXPECT_EQ(textOf("p.getValue()"), "8");
    run("def.renameEntry(\"new\", \"old\")");
    EXPECT_FALSE(evaluate("p.getValue()").isValid());
    run("undo()");
    EXPECT_EQ(textOf("p.getValue()"), "8");
    run("conf.setEntryValue(\"new\", 9)");
    EXPECT_EQ(textOf("p.getValue()"), "9");
    EXPECT_TRUE(evaluate("p").canSafelyBeUpdated(false));
    run("conf.setEntryValue(\"new\", readText(\"nothing.txt\"))");
    EXPECT_FALSE(evaluate("p").canSafelyBeUpdated(false));
    EXPECT_TRUE(evaluate("p").canSafelyBeUpdated(true));
}

TEST_F(FConfigurationTest, whatDependsOnTheWholeCannotBeItsValue) {
    run("def.addEntry(\"mesh\", inputFile(\"a\"))");
    // As a computation does.
    FParameter* result = FParameter::create({}, "result", {});
    result->setUpdateOnDemand(true);
    ASSERT_TRUE(FExprBase(&configuration()).registerClient(result));
    for (const char* value : {"2*result", "result", "inputFile(result+\".dat\")"}) {
        run(QStringLiteral("conf.setEntryValue(\"mesh\", %1)").arg(QString::fromLatin1(value)));
        EXPECT_TRUE(log().last().contains("would depend on itself")) << value;
    }
    auto* file = dynamic_cast<FInputFile*>(configuration().getValueEntry("mesh")->getValueObject());
    EXPECT_FALSE(file->setFileName(FExprBase(result)));
    EXPECT_EQ(file->getFileNameText(), "a");
    EXPECT_TRUE(result->dependsOn(file));
}

TEST_F(FConfigurationTest, indicesStandOnlyWhereMoreThanOneIsAllowed) {
    run("def.addEntry(\"Layer\", NULL, 3, 1)\ndef.addEntry(\"Layer|t\", 0.1, 2)");
    EXPECT_EQ(paths(), (QStringList{"Geometry|span", "Layer[0]|t[0]", "Layer[0]|t[1]", "height"}));
    // An occurrence that may exist is made when it gets a value.
    run("conf.setEntryValue(\"Layer[2]|t[1]\", 0.5)");
    EXPECT_EQ(paths().size(), 8);
    EXPECT_EQ(values(), (QStringList{"10", "0.1", "0.1", "0.1", "0.1", "0.1", "0.5", "40"}));
    for (const char* path : {"Layer[3]|t[0]", "Layer[-1]|t[0]", "Layer|t", "Layer[0]|t", "Layer[0]|t[2]", "Layer[0]",
                             "Layer[1]|x", "height[0]"}) {
        run(QStringLiteral("conf.setEntryValue(\"%1\", 1)").arg(QString::fromLatin1(path)));
        EXPECT_TRUE(log().last().contains("has no entry")) << path;
    }
    EXPECT_EQ(paths().size(), 8);
    configuration().reinit(true);
    EXPECT_EQ(values(), (QStringList{"10", "0.1", "0.1", "40"}));
}

TEST_F(FConfigurationTest, countsCannotFillTheMemory) {
    run("def.addEntry(\"a\", NULL, 1000)\ndef.addEntry(\"a|b\", NULL, 1000)");
    EXPECT_TRUE(logHolds("\"a|b\" would occur more than 100000 times")) << logText();
    EXPECT_EQ(definition().getEntryOfScope("a|b"), nullptr);
    run("def.addEntry(\"a|c\", 1, 90)\ndef.addEntry(\"a|d\", 1, 90)");
    EXPECT_TRUE(logHolds("would make more than 100000 entries"));
    EXPECT_LE(paths().size(), 100'002);
}

TEST_F(FConfigurationTest, aValueIsSetWithoutReadingFiles) {
    const FTestFolder folder;
    const QString text = "readText(" + quoteText(folder.path("late")) + ")";
    run("def.addEntry(\"mesh\", \"\")");
    for (const char* value : {"inputFile(%1)", "geometryExport(%1)", "geometryExport(\"name\",%1.length()-4)",
                              "geometryExport(\"name\",1,%1)", "resultsFileName(\"name\",%1.length())"}) {
        const QString expression = QString(value).arg(text);
        run("conf.setEntryValue(\"mesh\", " + expression + ")");
        EXPECT_EQ(log(), QStringList()) << value;
        EXPECT_EQ(configuration().furtherSavedCommands().last(), "setEntryValue(\"mesh\"," + expression + ")");
    }
    folder.write("late", "name");
    const FObject* value = configuration().getValueEntry("mesh")->getValueObject();
    EXPECT_EQ(dynamic_cast<const FResultsFileName*>(value)->getType(), ResultsFileType::Mesh);
}

TEST_F(FConfigurationTest, aValueChangedInPlaceIsUndone) {
    run("def.addEntry(\"mesh\", inputFile(\"a.dat\"))\ndef.addEntry(\"out\", resultsFileName(\"b.dat\"))\n"
        "def.addEntry(\"wing\", geometryExport(\"c.dat\"))\nparameter p(1)");
    FEntry* entry = configuration().getValueEntry("mesh");
    auto* input = dynamic_cast<FInputFile*>(entry->getValueObject());
    auto* output = dynamic_cast<FResultsFileName*>(configuration().getValueEntry("out")->getValueObject());
    auto* geometry = dynamic_cast<FGeometryExport*>(configuration().getValueEntry("wing")->getValueObject());
    const FExpr<FObjectList> objects(new FObjectList);
    objects->add(evaluate("p"));
    const std::function<void()> changes[] = {
        [&] { input->setSaveDirectory(FExprBase(new FString("sub"))); },
        [&] { output->setType(ResultsFileType::Text); },
        [&] { geometry->setFileName("d.dat"); },
        [&] { geometry->setKind(FGeometryExport::Kind::Feature); },
        [&] { geometry->addGeometryObjects(objects); },
    };
    const auto state = [this] { return configuration().furtherSavedCommands().join('\n').toStdString(); };
    for (const auto& change : changes) {
        const std::string before = state();
        {
            const FUserStep step("change a value");
            change();
        }
        EXPECT_NE(state(), before);
        EXPECT_TRUE(configuration().isOutOfDate());
        run("undo()");
        EXPECT_EQ(state(), before);
    }
    EXPECT_FALSE(definition().furtherSavedCommands().join(' ').contains("sub"));
    objects->add(evaluate("conf"));
    EXPECT_FALSE(geometry->setGeometryObjects(objects));
    EXPECT_TRUE(logHolds("the export \"c.dat\" would depend on itself with conf"));
    // Two entries never share a value that can be changed.
    run("def.addEntry(\"mesh2\", NULL, 1, 1, false, \"\", \"FInputFile\")\n"
        "conf.setEntryValue(\"mesh2\", conf.getEntryValue(\"mesh\"))\nv = conf.getEntryValue(\"mesh\")\n"
        "conf.setEntryValue(\"mesh2\", v)");
    EXPECT_NE(configuration().getValueEntry("mesh2")->getValueObject(), entry->getValueObject());
}

TEST_F(FConfigurationTest, aFileNameFollowsItsExpression) {
    run("parameter dir(\"runs\")\nparameter name(\"m.dat\")\ndef.addEntry(\"mesh\", inputFile(\"a/b.dat\"))\n"
        "conf.setEntryValue(\"mesh\", inputFile(dir+\"/\"+name, dir))");
    const FEntry* entry = configuration().getValueEntry("mesh");
    const auto* file = dynamic_cast<FInputFile*>(entry->getValue().getStored());
    ASSERT_TRUE(file);
    EXPECT_EQ(file->getFileNameText(), "runs/m.dat");
    run("name.setValue(\"x\\y.dat\")\ndir.setValue(\"s/\")");
    EXPECT_EQ(file->toPlainString(), "s/y.dat");
    auto* dir = dynamic_cast<FParameter*>(evaluate("dir").getObject());
    EXPECT_TRUE(entry->dependsOn(dir));
    EXPECT_FALSE(dir->setValue(FExprBase(entry)));
    run("def.addEntry(\"same\", 1)\nconf.setEntryValue(\"same\", conf.getEntryValue(\"mesh\"))");
    EXPECT_EQ(configuration().getEntry(FInputFile::null(), true).size(), 2);
    EXPECT_EQ(configuration().getEntry(FInputFile::null(), false).size(), 1);
}

TEST_F(FConfigurationTest, anEntryCanBeCreatedByName) {
    run("def.addEntry(\"Layer\", NULL, 3, 1)\ndef.addEntry(\"Layer|t\", 7)");
    FEntry* layer = FEntry::create("Layer", &configuration(), true);
    EXPECT_EQ(layer->getFullName(), "Layer[1]");
    EXPECT_EQ(values(), (QStringList{"10", "7", "7", "40"}));
    FEntry* unknown = FEntry::create("height", layer, true);
    EXPECT_EQ(unknown->getFullName(), "Layer[1]|height");
    EXPECT_FALSE(unknown->getDefinition());
    configuration().reinit(false);
    EXPECT_EQ(values(), (QStringList{"10", "7", "7", "40"}));
}

TEST_F(FConfigurationTest, clientsAndSuppliersOfATypeAreFoundThroughExpressionsAndEntries) {
    ASSERT_TRUE(
        run("parameter a(2)\nparameter b(3*a)\nparameter c(max(b,1)+a)\nparameter gone(a)\n"
            "conf.setEntryValue(\"height\",c)\ndestroy(gone)"));
    const auto names = [](const std::vector<FObject*>& objects) {
        QStringList list;
        for (const FObject* object : objects) {
            list.append(object->toString());
        }
        list.sort();
        return list.join(' ');
    };
    const auto* first = object<FParameter>("a");
    EXPECT_EQ(names(first->getClientsCmdHelper({FParameter::null()})), "b c");
    EXPECT_EQ(names(first->getClientsCmdHelper({FParameter::null(), FConfiguration::null()})), "b c conf");
    EXPECT_EQ(names(object<FParameter>("c")->getSuppliersCmdHelper({FEntity::null()})), "a b");
}

TEST_F(FConfigurationTest, aHandleOnADestroyedObjectIsDetached) {
    const FExprBase handle(FParameter::create({}, "a", {}));
    EXPECT_FALSE(handle.isDetached() || FExprBase().isDetached());
    run("destroy(a)");
    EXPECT_TRUE(handle.isDetached());
    FHistory::instance()->undo();
    EXPECT_FALSE(handle.isDetached());
}

}  // namespace
