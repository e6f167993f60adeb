#include "genericintegration/connector/FPartAccessible.h"
#include "host/core/FSelectionSet.h"
#include "tests/genericintegration/connector/FConnectorTest.h"

#include <QAccessible>

namespace {

class FPartAccessibleTest : public FConnectorTest {};

}  // namespace

TEST_F(FPartAccessibleTest, aScreenReaderFindsItsButtonsAndItems) {
    open();
    QAccessibleInterface* view = QAccessible::queryAccessibleInterface(connector().getView());
    ASSERT_EQ(view->childCount(), 10 + 4);
    const auto part = [view](const QString& name) -> QAccessibleInterface* {
        for (int index = 0; index < view->childCount(); ++index) {
            if (view->child(index)->text(QAccessible::Name) == name) {
                EXPECT_EQ(view->indexOfChild(view->child(index)), index);
                return view->child(index);
            }
        }
        return nullptr;
    };
    EXPECT_EQ(part("Add Input Geometry")->role(), QAccessible::Button);
    EXPECT_TRUE(part("Automatic scan for results")->state().checkable);
    QAccessibleInterface* input = part("case.inp");
    ASSERT_NE(input, nullptr);
    EXPECT_EQ(input->role(), QAccessible::ListItem);
    EXPECT_EQ(input->parent(), view);
    const QPoint centre = input->rect().center();
    EXPECT_EQ(view->childAt(centre.x(), centre.y()), input);
    auto& actions = *input->actionInterface();
    actions.doAction(actions.actionNames().first());
    ASSERT_TRUE(waitUntil([] { return FSelectionSet::instance()->contains(object<FManaged>("c")); }));
    actions.doAction("Open");
    settle();
    EXPECT_EQ(connector().tabText(connector().currentIndex()), "case.inp");
    ASSERT_EQ(input->childCount(), 1);
    input->child(0)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(items(), "more.inp | out.txt | solver");
    EXPECT_EQ(part("case.inp"), nullptr);
}
