#include "host/gui/base/FStateColor.h"
#include "host/gui/base/FTheme.h"
#include "host/gui/fields/FScriptCompleter.h"
#include "host/gui/panels/FConsole.h"
#include "host/run/FExternComputation.h"
#include "tests/support/window/FWindowTest.h"

#include <QAction>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTimer>

namespace {

class FConsoleTest : public FWindowTest {
 public:
    FConsoleTest() { openPanel("console"); }

    QString output() { return find<QPlainTextEdit>("consoleOutput")->toPlainText(); }
    QString line() { return find<QLineEdit>("consoleLine")->text(); }
};

}  // namespace

TEST_F(FConsoleTest, eachLineIsAStepAndShowsItsValueOrItsError) {
    enter("parameter span(2.5)");
    enter("twice = 2 * span");
    enter("twice");
    enter("print(\"a\", 1)");
    enter("span.setVallue(1)");
    EXPECT_TRUE(output().contains("> twice\n5\n")) << output().toStdString();
    EXPECT_TRUE(output().contains("> print(\"a\", 1)\na 1\n")) << output().toStdString();
    EXPECT_TRUE(output().contains("> span.setVallue(1)\n       ^\n")) << output().toStdString();
    EXPECT_TRUE(output().contains("console:1:6")) << output().toStdString();
    EXPECT_TRUE(output().contains("setValue")) << output().toStdString();
    trigger("undo");
    EXPECT_EQ(object<FManaged>("span"), nullptr);
    // An expression that names it gives nothing, and the window lives on.
    enter("span.getValue()");
    EXPECT_TRUE(output().contains("\"span\"")) << output().toStdString();
    enter("1 + 1");
    EXPECT_TRUE(output().endsWith("> 1 + 1\n2\n")) << "an error is that of its line: " << output().toStdString();
}

TEST_F(FConsoleTest, earlierLinesHaveTheColoursOfThePalette) {
    FTheme::choose(FTheme::Appearance::Light);
    enter("lod");
    const auto color = [this](const QString& text) {
        const QTextCursor found = find<QPlainTextEdit>("consoleOutput")->document()->find(text);
        return found.charFormat().foreground().color();
    };
    const QColor light = FStateColor::of(FStateColor::State::Bad);
    EXPECT_EQ(color("error"), light);
    FTheme::choose(FTheme::Appearance::Dark);
    settle();
    ASSERT_NE(FStateColor::of(FStateColor::State::Bad), light);
    EXPECT_EQ(color("error"), FStateColor::of(FStateColor::State::Bad));
    EXPECT_EQ(color("> lod"), FStateColor::of(FStateColor::State::Secondary));
    FTheme::choose(FTheme::Appearance::Desktop);
}

TEST_F(FConsoleTest, earlierLinesComeBack) {
    enter("parameter a(1)");
    enter("parameter b(2)");
    QLineEdit* field = find<QLineEdit>("consoleLine");
    type(field, "new");
    press(field, Qt::Key_Up);
    press(field, Qt::Key_Up);
    press(field, Qt::Key_Up);
    EXPECT_EQ(line(), "parameter a(1)");
    press(field, Qt::Key_Down);
    EXPECT_EQ(line(), "parameter b(2)");
    press(field, Qt::Key_Down);
    EXPECT_EQ(line(), "new");
}

TEST_F(FConsoleTest, namesAreCompletedFromTheTables) {
    enter("parameter span(1)");
    enter("variable = span");
    const auto* completer = find<QLineEdit>("consoleLine")->findChild<FScriptCompleter*>();
    ASSERT_NE(completer, nullptr);
    EXPECT_TRUE(completer->candidates("x = sp").contains("span"));
    EXPECT_TRUE(completer->candidates("pr").contains("print"));
    EXPECT_TRUE(completer->candidates("1 + span.").contains("setValue"));
    EXPECT_TRUE(completer->candidates("variable.").contains("setValue"));
    EXPECT_FALSE(completer->candidates("span.").contains("print"));
    EXPECT_TRUE(completer->candidates("nothing.").isEmpty());
}

TEST_F(FConsoleTest, whileALineWaitsForARunOnlyStopIsPossible) {
    ASSERT_TRUE(
        run("genericIntegrationDefinition d()\ngenericIntegrationConfiguration c() { .setDefinition(d) }\n"
            "genericIntegrationComputation solver() {\n.setConfiguration(c)\n.setExecutable(\"sleep\")\n"
            ".setArguments([\"60\"])\n}"));
    auto* solver = object<FExternComputation>("solver");
    ASSERT_NE(solver, nullptr);
    // Stop acts on what runs, even if Run would act on another computation.
    ASSERT_TRUE(run("genericIntegrationComputation other()"));
    window().showObject(object<FManaged>("other"));
    settle();
    bool wasLocked = false;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
        if (solver->getLastRun().state == FRunRecord::State::Running && action("stop")->isEnabled()) {
            wasLocked = action("run")->text().contains("other") && !find("consoleLine")->isEnabled() &&
                        !action("run")->isEnabled() && !action("undo")->isEnabled() && !find("objectTree")->isEnabled();
            dialogs().answers.enqueue("Keep running");
            window().close();
            EXPECT_TRUE(window().isVisible());
            action("stop")->trigger();
        }
    });
    poll.start(5);
    // The rest of the line is stopped, too.
    enter("solver.run(); parameter after(1)");
    EXPECT_TRUE(wasLocked) << output().toStdString();
    EXPECT_EQ(object<FManaged>("after"), nullptr);
    EXPECT_EQ(solver->getLastRun().state, FRunRecord::State::Cancelled);
    EXPECT_TRUE(find("consoleLine")->isEnabled());
    EXPECT_TRUE(action("run")->isEnabled());
}

TEST_F(FConsoleTest, aLineMayDestroyWhatIsShown) {
    enter("parameter span(1)");
    window().showObject(object<FManaged>("span"));
    settle();
    enter("destroy(span)");
    enter("newProject()");
    EXPECT_TRUE(savedModel().isEmpty());
}
