#include "host/gui/window/FNoticeBar.h"
#include "tests/support/window/FWindowTest.h"

#include <QLabel>

#include <memory>

TEST_F(FWindowTest, theRemedyOfANoticeMayShowAnotherOne) {
    FNoticeBar& bar = window().notices();
    auto held = std::make_shared<int>(1);
    const std::weak_ptr<int> watched = held;
    bool outlivesItsNotice = false;
    bar.showNotice({"Not saved", {}, "Save it", [held = std::move(held), &bar, &watched, &outlivesItsNotice] {
                        const std::weak_ptr<int>* const kept = &watched;
                        bool* const result = &outlivesItsNotice;
                        bar.showNotice({"Still not saved"});
                        *result = !kept->expired();
                    }});
    EXPECT_EQ(bar.text(), "Not saved Save it");
    emit find<QLabel>("noticeText")->linkActivated("#");
    EXPECT_EQ(bar.text(), "Still not saved");
    EXPECT_TRUE(outlivesItsNotice);
}
