#include "host/core/FHistory.h"
#include "host/core/FInitPrototype.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FQuotedText.h"
#include "host/core/FUserInterface.h"
#include "host/design/FConfiguration.h"
#include "host/design/FEntryTree.h"
#include "host/lodm/FLodmDefinitionParser.h"
#include "host/script/FCmdTable.h"
#include "host/script/FScriptParser.h"
#include "tests/support/FModelTest.h"
#include "tests/support/FTestFolder.h"

#include <QBuffer>
#include <QProcess>
#include <QRandomGenerator>

namespace {

/** A definition that scripts, and so the parser, can make. */
class FMadeDefinition : public FClass<FMadeDefinition, FDefinitionCustom> {
 public:
    static FClassData mClass;
    explicit FMadeDefinition(const QString& name = QString()) : FClass(name) {}
};

void commands(FCmdTable& table) {
    table.entityCreator(
        "madeDefinition", +[](const FNewName& name) {
            auto* definition = new FMadeDefinition(name.name);
            definition->registerObject();
            return definition;
        });
}

FClassData FMadeDefinition::mClass("FMadeDefinition", &FDefinitionCustom::mClass, &commands);
const FInitPrototypes<FMadeDefinition> types;

class FLodmDefinitionParserTest : public FDirectTest {
 protected:
    static QByteArray written(const FDefinitionCustom* definition) {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        EXPECT_TRUE(FLodmDefinitionParser().write(&buffer, definition));
        return buffer.data();
    }
    static FDefinitionCustom* read(const QString& text) {
        FLodmDefinitionParser parser{FExpr<FDefinitionCustom>(FMadeDefinition::null())};
        const bool isRead = parser.read(text);
        EXPECT_EQ(isRead, static_cast<bool>(parser.getDefinition()));
        return parser.getDefinition().ptr();
    }
    /** Wraps entries into a file of the present version. */
    static QString file(const QString& entries) {
        return "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<definition version=\"1\" name=\"d\">\n" + entries +
               "\n</definition>\n";
    }
    void expectRefused(const QString& text, const QString& reason) {
        const int lines = log().size();
        const QString before = savedModel();
        EXPECT_EQ(read(text), nullptr) << text.left(200).toStdString();
        EXPECT_EQ(log().size(), lines + 1);
        EXPECT_TRUE(log().last().contains(reason)) << log().last().toStdString() << "\nnot " << reason.toStdString();
        EXPECT_EQ(savedModel(), before);
    }
    static bool fitsSchema(const QByteArray& xml) {
        const FTestFolder folder;
        QProcess xmllint;
        xmllint.start("xmllint", {"--noout", "--relaxng", MERIX_LODM_SCHEMA, folder.write("d.xml", xml)});
        return xmllint.waitForFinished() && xmllint.exitStatus() == QProcess::NormalExit && xmllint.exitCode() == 0;
    }
};

/** A text of pieces that are hard to hold. */
QString randomText(QRandomGenerator& random, bool isName) {
    static const QStringList pieces{
        "a",     " ",  "\"",      "'",       "\\",    "\\u0041", "&",
        "&amp;", "\t", "ж",       "𝄞",       "\x01",  "\r",      "\n",
        "]]>",   "--", "<?xml?>", "<entry>", "[B64]", "|",       FLodmDefinitionParser::smObjectArea};
    QString text;
    for (int i = random.bounded(5); i >= 0; --i) {
        text += pieces[random.bounded(isName ? 12 : pieces.size())];
    }
    return text;
}

/** The lines that add entries of all kinds at random. */
QString randomEntries(quint32 seed) {
    QRandomGenerator random(seed);
    const auto text = [&random](bool isName) { return quoteText(randomText(random, isName)); };
    QString lines;
    for (int i = 0; i < 20; ++i) {
        const QStringList values{
            QString::number(random.generateDouble() * 1e-9),      text(false), "true", "number(\"nan\")",
            "inputFile(" + text(false) + "," + text(false) + ")", "NULL"};
        const int kind = random.bounded(values.size());
        const int most = 1 + random.bounded(3);
        const QString group = QStringList{"", "g|", "g|\t|", "h|g|"}[random.bounded(4)];
        lines += QStringLiteral(".addEntry(%1,%2,%3,%4,%5,%6,%7)\n")
                     .arg(quoteText(group + QString::number(i) + randomText(random, true)), values[kind])
                     .arg(most)
                     .arg(random.bounded(most + 1))
                     .arg(random.bounded(2) == 0 ? "true" : "false", text(false), kind == 5 ? "\"FString\"" : "\"\"");
    }
    return lines;
}

TEST_F(FLodmDefinitionParserTest, everyDefinitionComesBackAndFitsTheSchema) {
    for (quint32 seed = 1; seed <= 40; ++seed) {
        auto* made = new FMadeDefinition("made");
        made->registerObject();
        ASSERT_TRUE(made->setEntryDefsFromDB(randomEntries(seed))) << logText();
        QRandomGenerator random(seed);
        made->addDocu(randomText(random, false), seed % 4);
        const auto docu = made->getDocu();
        const QByteArray xml = written(made);
        ASSERT_TRUE(xml.startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<"));
        EXPECT_TRUE(seed > 5 || fitsSchema(xml)) << xml.toStdString();
        const std::string commands = made->furtherSavedCommands().join('\n').toStdString();
        FManaged::destroy(made, true);
        FDefinitionCustom* back = read(QString::fromUtf8(xml));
        ASSERT_NE(back, nullptr) << logText();
        ASSERT_EQ(back->furtherSavedCommands().join('\n').toStdString(), commands);
        EXPECT_EQ(back->getDocu(), docu);
        EXPECT_TRUE(log().isEmpty()) << logText();
        FManaged::destroy(back, true);
    }
    EXPECT_FALSE(fitsSchema(file("<entry name=\"a|b\" type=\"FDouble\"/>").toUtf8()));
}

TEST_F(FLodmDefinitionParserTest, faultsAreToldWithTheirPlaceAndLeaveNothing) {
    expectRefused("", "definition:1:1: the definition can't be read");
    expectRefused("nonsense", "definition:1:");
    expectRefused("<project/>", "expected <definition>, found <project>");
    expectRefused("<definition version=\"2\"><new/></definition>", "a newer release of the program may read it");
    expectRefused("<definition version=\"1\" nam=\"x\"/>", "no attribute \"nam\" (did you mean \"name\"?)");
    expectRefused("<definition version=\"1\"/><definition version=\"1\"/>", "Extra content");
    expectRefused(file("<docu area=\"DocuNaem\"/>"),
                  "DocuExample, DocuResult, DocuHelp as \"area\" of <docu>, found \"DocuNaem\"");
    expectRefused(file(QString("<docu area=\"DocuName\"/>").repeated(2)), "two texts of DocuName");
    expectRefused(file("stray"), "definition:4:2: the definition can't be read: expected an element, found the text");
    expectRefused(file("<entry name=\"a\"/>"), "the type of entry \"a\" isn't told");
    expectRefused(file("<entry name=\"a[1]\" type=\"FDouble\"/>"), "found \"a[1]\"");
    expectRefused(file("<entry name=\"a\" type=\"FDuoble\"/>"), "the class \"FDuoble\" of entry \"a\" isn't known");
    expectRefused(file("<entry name=\"a\" type=\"FDouble\" least=\"2\"/>"), "found least 2 and most 1");
    expectRefused(file("<group name=\"g\" hidden=\"yes\"/>"), "\"hidden\" of <group>, found \"yes\"");
    expectRefused(file("<entry name=\"a\"><default>1</default></entry>"), "as \"kind\" of <default>, found \"\"");
    expectRefused(file("<entry name=\"a\"><default kind=\"number\">1,5</default></entry>"), "found \"1,5\"");
    expectRefused(file("<entry name=\"a\"><default kind=\"number\">1e999</default></entry>"), "expected a number");
    expectRefused(file("<entry name=\"a\"><default kind=\"text\">a<b/></default></entry>"), "definition:3:");
    expectRefused(file("<entry name=\"a\" type=\"FDouble\"><default kind=\"script\">1 +</default></entry>"),
                  "the script text of a default is wrong");
    const QString twice = "<entry name=\"a\" type=\"FBool\"/>";
    expectRefused(file("<group name=\"g\">" + twice + twice + "</group>"),
                  "two entries in <group> have the name \"a\"");
    const QString whole = file(
        "<group name=\"g\"><entry name=\"a\"><default kind=\"truth\">true</default>"
        "<description>x</description></entry></group>");
    for (int cut = whole.size() - 3; cut > 0; cut -= 7) {
        expectRefused(whole.left(cut), "definition:");
    }
}

TEST_F(FLodmDefinitionParserTest, hostileFilesEndInAMessage) {
    expectRefused(file(QString("<group name=\"g\">").repeated(1'000'000)), "more than 50 levels");
    expectRefused(file(QString("<group name=\"") + QString(5'000'000, 'x') + "\" most=\"0\"/>"),
                  "found least 1 and most 0");
    QString bomb = "<!DOCTYPE definition [<!ENTITY a0 \"ha\">";
    for (int i = 1; i < 40; ++i) {
        bomb += QString("<!ENTITY a%1 \"&a%2;&a%2;\">").arg(i).arg(i - 1);
    }
    expectRefused(bomb + "]><definition version=\"1\" name=\"&a39;\"/>", "document type declaration");
    expectRefused("<!DOCTYPE definition SYSTEM \"/etc/passwd\"><definition version=\"1\"/>",
                  "definition:1:1: the definition can't be read: a document type declaration");
    QString attributes;
    for (int i = 0; i < 100'000; ++i) {
        attributes += " a" + QString::number(i) + "='>'";
    }
    expectRefused(file("<!-- <\" --><entry" + attributes + "/>"),
                  "definition:3:12: the definition can't be read: a tag");
    EXPECT_NE(read(file("<!--" + attributes + "--><entry name=\"" + QString(500, '=') + "\" type=\"FBool\"/>")),
              nullptr);
    QString many;
    for (int i = 0; i <= FEntryTree::mostEntries; ++i) {
        many += "<entry name=\"e" + QString::number(i) + "\" type=\"FDouble\"/>";
    }
    expectRefused(file(many), "more than 100000 entries");
    EXPECT_NE(read(file(many.left(many.lastIndexOf("<entry")))), nullptr) << "the most that may be";
    QBuffer latin;
    latin.setData("<definition version=\"1\">\n<!-- \xE4 --></definition>");
    latin.open(QIODevice::ReadOnly);
    FLodmDefinitionParser parser{FExpr<FDefinitionCustom>(FMadeDefinition::null())};
    EXPECT_FALSE(parser.read(&latin));
    EXPECT_TRUE(logHolds("definition:2:1: the definition can't be read: the line isn't UTF-8"));
}

TEST_F(FLodmDefinitionParserTest, defaultsOnlyAsk) {
    ASSERT_TRUE(run("parameter p(4)"));
    const auto entry = [](const QString& name, const QString& script) {
        return "<entry name=\"" + name + "\" type=\"FDouble\"><default kind=\"script\">" + script +
               "</default></entry>";
    };
    const FDefinitionCustom* made =
        read(file(entry("sum", "p + 1") + entry("file", "readText(\"/etc/passwd\")") + entry("act", "destroy(p)") +
                  entry("none", "q") + entry("object", "[p].at(0)")));
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->furtherSavedCommands().first(), "addEntry(\"sum\",5)");
    EXPECT_TRUE(textOf("exists(\"p\")") == "true");
    EXPECT_TRUE(
        logHolds("the default of entry \"file\" can't be taken over: \"readText(\"/etc/passwd\")\" would read files"));
    EXPECT_TRUE(logHolds("definition:3:"));
    EXPECT_TRUE(logHolds("\"act\"") && logHolds("\"none\""));
    EXPECT_EQ(made->furtherSavedCommands()[3], "addEntry(\"none\",NULL,1,1,false,\"\",\"FDouble\")");
}

TEST_F(FLodmDefinitionParserTest, manyFaultyDefaultsAreToldInShort) {
    ASSERT_TRUE(run("parameter known(1)"));
    QString entries;
    for (int i = 0; i < mostErrors + 10; ++i) {
        entries += "<entry name=\"e" + QString::number(i) +
                   "\" type=\"FDouble\"><default kind=\"script\">knwon</default></entry>";
    }
    ASSERT_NE(read(file(entries)), nullptr);
    EXPECT_EQ(log().size(), mostErrors + 1);
    EXPECT_EQ(log().filter("nothing is named \"knwon\" (did you mean \"known\"?)").size(), 20);
    EXPECT_TRUE(log().last().contains("10 more defaults can't be taken over")) << log().last().toStdString();
}

TEST_F(FLodmDefinitionParserTest, readingIntoADefinitionReplacesItsEntries) {
    ASSERT_TRUE(run("madeDefinition d() { .addEntry(\"old\", 1) .addEntry(\"G|kept\", 2) }"));
    auto* configuration = new FConfiguration("conf");
    configuration->registerObject();
    configuration->setDefinition(FExpr<FDefinition>(object<FDefinitionCustom>("d")));
    ASSERT_TRUE(run("conf.setEntryValue(\"G|kept\", 7)"));
    const QString before = savedModel();
    FLodmDefinitionParser broken{FExpr<FDefinitionCustom>(object<FDefinitionCustom>("d"))};
    EXPECT_FALSE(broken.read(file("<entry name=\"x\"/>")));
    EXPECT_EQ(broken.getDefinition().ptr(), nullptr);
    EXPECT_EQ(savedModel(), before);

    FLodmDefinitionParser parser{FExpr<FDefinitionCustom>(object<FDefinitionCustom>("d"))};
    ASSERT_TRUE(
        parser.read(file("<group name=\"G\"><entry name=\"kept\"><default kind=\"number\">3</default></entry>"
                         "</group><entry name=\"new\"><default kind=\"text\"> n </default></entry>")));
    EXPECT_EQ(parser.getDefinition().ptr(), object<FDefinitionCustom>("d"));
    EXPECT_EQ(configuration->getEntryMap().keys(), (QStringList{"G|kept", "new"}));
    EXPECT_EQ(textOf("conf.getEntryValue(\"G|kept\")"), "7");
    EXPECT_EQ(textOf("conf.getEntryValue(\"new\")"), " n ");
    EXPECT_TRUE(FHistory::instance()->undo());
    EXPECT_EQ(savedModel().toStdString(), before.toStdString());
}

TEST_F(FLodmDefinitionParserTest, aDefinitionIsSavedInOneStepOrNotAtAll) {
    const FTestFolder folder;
    ASSERT_TRUE(run("madeDefinition d() { .addEntry(\"a\", 1) }"));
    EXPECT_FALSE(object<FDefinitionCustom>("d")->save());
    EXPECT_TRUE(log().isEmpty());
    run("d.save()");
    EXPECT_TRUE(logHolds("d: the definition has no file to be saved in"));
    run("d.save(\"" + folder.path("none/d.lodm") + "\")");
    EXPECT_TRUE(logHolds("none/d.lodm\": No such file or directory"));
    ASSERT_TRUE(run("done = d.save(\"" + folder.path("d.lodm") + "\")"));
    EXPECT_EQ(folder.read("d.lodm"), written(object<FDefinitionCustom>("d")));
    EXPECT_EQ(FHistory::instance()->getLabels(), QStringList{"madeDefinition"}) << "nothing to be undone";
    // If the file cannot be replaced, it stays, and no other file is left over.
    QDir(folder.path()).mkpath("dir.lodm/sub");
    object<FDefinitionCustom>("d")->setSaveFileName(folder.path("dir.lodm"));
    EXPECT_FALSE(object<FDefinitionCustom>("d")->save());
    EXPECT_TRUE(logHolds("dir.lodm\": it is a folder"));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              (QStringList{"d.lodm", "dir.lodm"}));
}

TEST_F(FLodmDefinitionParserTest, windowsAskWhereADefinitionIsSavedFirst) {
    const FTestFolder folder;
    struct Windows : FUserInterface {
        bool hasGui() const override { return true; }
        QString askSaveFile(const QString&, const QString& startPath, const QString&) override {
            questions.append(startPath);
            return answer;
        }
        QString answer;
        QStringList questions;
    } windows;
    ASSERT_TRUE(run("madeDefinition d() { .addEntry(\"a\", 1) }"));
    FMerixCtrl::instance()->setProjectFile(folder.path("p.mrx"));
    FUserInterface::replace(&windows);
    run("d.save()");
    EXPECT_TRUE(log().isEmpty()) << "the user cancelled";
    windows.answer = folder.path("chosen.lodm");
    EXPECT_TRUE(object<FDefinitionCustom>("d")->save());
    EXPECT_TRUE(object<FDefinitionCustom>("d")->save());
    FUserInterface::replace(nullptr);
    EXPECT_EQ(windows.questions, (QStringList{folder.path("d.lodm"), folder.path("d.lodm")}));
    EXPECT_EQ(folder.read("chosen.lodm"), written(object<FDefinitionCustom>("d")));
}

}  // namespace
