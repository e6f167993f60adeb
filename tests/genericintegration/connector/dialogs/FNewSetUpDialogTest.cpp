#include "genericintegration/connector/FSoftwareConnector.h"
#include "genericintegration/connector/dialogs/FNewSetUpDialog.h"
#include "tests/genericintegration/connector/FConnectorTest.h"

#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QToolButton>

namespace {

class FNewSetUpDialogTest : public FConnectorTest {};

}  // namespace

TEST_F(FNewSetUpDialogTest, aNewSetUpIsOneStepFromProgramAndSamples) {
    folder.write("case.inp", "height = 40\n");
    folder.write("case.dat", "stress = 2.5\n");
    folder.write("mesh.bin", QByteArray("\0\1\2", 3));
    trigger("newSetUp");
    type(find<QLineEdit>("newProgram"), "no-such-program-here");
    EXPECT_TRUE(find<QLabel>("newProgramFound")->text().startsWith(QChar(0x26a0)));
    // A selected path is one word, whatever is in it.
    const QString odd = folder.write("it's \\a&b \"c\".sh", "#!/bin/sh\n");
    QFile::setPermissions(odd, QFile::ReadOwner | QFile::ExeOwner);
    dialogs().answers.enqueue(odd);
    find<QPushButton>("newSelectProgram")->click();
    EXPECT_EQ(find<QLabel>("newProgramFound")->text(), QChar(0x2713) + QString(" ") + odd);
    // What a shell would take for itself is no argument.
    for (const auto& [command, remedy] : {std::pair("", "PATH"),
                                          {"sh a > out.txt", "stdout.txt"},
                                          {"sh a | bc", "sh -c 'sh a | bc'"},
                                          {"sh 'a b", "isn't closed"}}) {
        find<QLineEdit>("newProgram")->clear();
        type(find<QLineEdit>("newProgram"), command);
        EXPECT_FALSE(find<QPushButton>("newCreate")->isEnabled()) << command;
        EXPECT_TRUE(find<QLabel>("newProgramFound")->text().contains(remedy))
            << find<QLabel>("newProgramFound")->text().toStdString();
    }
    find<QLineEdit>("newProgram")->clear();
    type(find<QLineEdit>("newProgram"), "sh -c 'cp case.inp case.dat' <case.inp");
    EXPECT_TRUE(find<QLabel>("newProgramFound")->text().contains("case.inp: add it to the input files"));
    EXPECT_EQ(find<QLineEdit>("newName")->text(), "sh");
    const auto drop = [this](const QString& list, const QStringList& names) {
        const std::unique_ptr<QMimeData> data = filesOf(names);
        QDragEnterEvent enter({2, 2}, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(find<QListWidget>(list)->viewport(), &enter);
        QDropEvent event({2, 2}, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(find<QListWidget>(list)->viewport(), &event);
    };
    drop("newInputsList", {"case.inp", "mesh.bin"});
    dialogs().answers.enqueue(folder.path("case.dat"));
    find<QToolButton>("newOutputsAdd")->click();
    settle();
    EXPECT_TRUE(find<QLabel>("newProgramFound")->text().contains("/sh, reads case.inp"));
    EXPECT_EQ(find<QListWidget>("newInputsList")->count(), 2);
    find<QPushButton>("newCreate")->click();
    settle();
    auto* made = object<FSoftwareConnector>("sh_connector");
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->tabText(made->currentIndex()), "case.inp") << "the first template is open";
    EXPECT_EQ(made->getScene()->objectItems().size(), 4);
    EXPECT_NE(object<FManaged>("sh_definition"), nullptr);
    EXPECT_NE(object<FManaged>("sh_configuration"), nullptr);
    EXPECT_EQ(textOf("getAttribute(sh, \"setStandardInput\")"), "case.inp");
    EXPECT_EQ(textOf("getAttribute(sh, \"setArguments\")"), textOf("[\"-c\", \"cp case.inp case.dat\"]"));
    EXPECT_EQ(lastStep(), "New set-up");
    trigger("undo");
    settle();
    EXPECT_TRUE(savedModel().isEmpty()) << savedModel().toStdString();
}
