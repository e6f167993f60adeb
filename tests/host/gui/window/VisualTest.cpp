#include "host/core/FSelectionSet.h"
#include "host/gui/base/FStateColor.h"
#include "host/gui/base/FTheme.h"
#include "host/gui/window/FPanelTable.h"
#include "host/gui/window/FTextsDialog.h"
#include "tests/support/window/FVisualCheck.h"
#include "tests/support/window/FWindowTest.h"

#include <QApplication>

#include <functional>

namespace {

const QSize smallest(1024, 700);

/** At three font sizes and in two palettes. */
class VisualTest : public FWindowTest, public testing::WithParamInterface<std::tuple<double, FTheme::Appearance>> {
 public:
    VisualTest() : mUsual(QApplication::font()) {
        QFont font = mUsual;
        font.setPointSizeF(std::get<0>(GetParam()) * mUsual.pointSizeF());
        QApplication::setFont(font);
        FTheme::choose(std::get<1>(GetParam()));
        restart();
        window().resize(smallest);
    }
    ~VisualTest() override {
        QApplication::setFont(mUsual);
        FTheme::choose(FTheme::Appearance::Desktop);
    }

    void check(QWidget& widget, const QString& what) {
        settle();
        const QStringList faults = FVisualCheck(widget).faults();
        EXPECT_TRUE(faults.isEmpty()) << what.toStdString() << ":\n" << faults.join('\n').toStdString();
        const QString folder = qEnvironmentVariable("MERIX_PICTURES");
        if (!folder.isEmpty()) {
            const auto [scale, appearance] = GetParam();
            widget.grab().save(QStringLiteral("%1/%2-%3-%4.png")
                                   .arg(folder, what)
                                   .arg(scale)
                                   .arg(appearance == FTheme::Appearance::Dark ? "dark" : "light"));
        }
    }

 private:
    QFont mUsual;
};

}  // namespace

TEST_P(VisualTest, everythingIsReadableAndReachable) {
    check(window(), "start");
    ASSERT_TRUE(
        run("genericIntegrationDefinition beam() { .addEntry(\"Geometry|span\", 2.4) }\n"
            "genericIntegrationConfiguration values() { .setDefinition(beam) }\n"
            "genericIntegrationComputation solver() { .setConfiguration(values) }\n"
            "parameter span(2.4)\nparameter twice(2 * span)"));
    FSelectionSet::instance()->set({FExpr<FObject>(object<FManaged>("solver"))});
    settle();
    EXPECT_EQ(window().size(), smallest);
    for (const FPanelRow& row : FPanelTable::rows()) {
        openPanel(QString::fromLatin1(row.id));
        check(window(), QString::fromLatin1(row.id));
    }
    FTextsDialog texts("Preview", {{"a.inp", "1"}, {"b.inp", "2"}}, &window());
    texts.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&texts));
    check(texts, "texts");
}

INSTANTIATE_TEST_SUITE_P(, VisualTest,
                         testing::Combine(testing::Values(1.0, 1.5, 2.0),
                                          testing::Values(FTheme::Appearance::Light, FTheme::Appearance::Dark)));
