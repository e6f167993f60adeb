#include "host/core/FMerixCtrl.h"
#include "host/gui/window/FNoticeBar.h"
#include "host/script/FProject.h"
#include "tests/support/FTestFolder.h"
#include "tests/support/window/FWindowTest.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QTreeView>
#include <QUrl>

namespace {

class FFileDropTest : public FWindowTest {
 public:
    FFileDropTest() {
        EXPECT_TRUE(
            run(QStringLiteral("parameter p(1)\nsaveProject(\"%1\")\nnewProject()").arg(mFolder.path("beam.mrx"))));
        mFolder.write("out.txt", "1\n");
    }
    ~FFileDropTest() override { FProject::instance()->close(false); }

    /** Drops files on a widget as another program does; false if the drag is refused. */
    bool drop(QWidget* widget, const QStringList& files) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& file : files) {
            urls.append(QUrl::fromLocalFile(mFolder.path(file)));
        }
        data.setUrls(urls);
        const QPoint place = widget->rect().center();
        QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QApplication::sendEvent(widget, &enter);
        if (!enter.isAccepted()) {
            return false;
        }
        QDropEvent dropped(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(widget, &dropped);
        settle();
        return true;
    }
    QWidget* tree() { return find<QTreeView>("objectTree")->viewport(); }
    QString project() { return QFileInfo(FMerixCtrl::instance()->getProjectFile()).fileName(); }

    FTestFolder mFolder;
};

}  // namespace

TEST_F(FFileDropTest, aProjectIsOpenedWhereverItIsDroppedAndAsksAboutUnsavedWork) {
    EXPECT_TRUE(drop(&window(), {"out.txt", "beam.mrx"}));
    EXPECT_EQ(project(), "beam.mrx");
    ASSERT_TRUE(run("newProject()\nparameter mine(1)"));
    settle();
    openPanel("objects");
    dialogs().answers.enqueue("Cancel");
    EXPECT_TRUE(drop(tree(), {"beam.mrx"}));
    EXPECT_TRUE(dialogs().questions.last().contains("Save the changes"));
    EXPECT_NE(object<FManaged>("mine"), nullptr);
    dialogs().answers.enqueue("Discard");
    EXPECT_TRUE(drop(tree(), {"beam.mrx"}));
    EXPECT_EQ(project(), "beam.mrx");
}

TEST_F(FFileDropTest, whereAnotherFileCanBeDroppedIsTold) {
    EXPECT_TRUE(drop(&window(), {"out.txt"}));
    EXPECT_TRUE(window().notices().text().startsWith(
        "out.txt is neither a project nor an export of set-ups. Couple the program"))
        << window().notices().text().toStdString();
    ASSERT_TRUE(run("softwareConnector solver()"));
    settle();
    openPanel("objects");
    EXPECT_TRUE(drop(tree(), {"out.txt"}));
    EXPECT_TRUE(window().notices().text().contains("on an area of a software connector"));
    window().executeLocked([&] { EXPECT_FALSE(drop(&window(), {"beam.mrx"})) << "not while a script is executed"; });
}
