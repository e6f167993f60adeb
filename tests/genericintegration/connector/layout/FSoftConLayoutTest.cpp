#include "genericintegration/connector/layout/FLabelMetrics.h"
#include "genericintegration/connector/layout/FLayoutScene.h"
#include "genericintegration/connector/layout/FSoftConLargeGridLayout.h"
#include "genericintegration/connector/layout/FSoftConListLayout.h"
#include "genericintegration/connector/layout/FSoftConMediumGridLayout.h"
#include "tests/genericintegration/connector/layout/FLiteralLayout.h"
#include "tests/support/randomCases.h"

#include <gtest/gtest.h>

#include <QRandomGenerator>

#include <memory>
#include <vector>

namespace {

/** A layout whose needs and bounding rectangle can be seen. */
template <class Layout>
class FOpenLayout : public Layout {
 public:
    QVector<double> weights() const {
        return {this->mLeftWeight, this->mRightWeight, this->mTopWeight, this->mBottomWeight};
    }
    QRectF bounds() const { return this->mBoundingRect; }
};

const FLabelMetrics fivePerLetter{[](const QString& text) { return 5.0 * text.size(); },
                                  [](const QString& text, int width) { return text.left(width / 5); }, 13};

FLayoutItem makeItem(SoftConArea area, const QString& label, QSizeF size, QPointF offset = {}) {
    FLayoutItem item;
    item.area = area;
    item.label = label;
    item.labelSize = {5.0 * label.size(), 13};
    item.size = size;
    item.offset = offset;
    item.icon = {16, 16};
    item.button = {20, 20};
    return item;
}

QList<FLayoutItem*> pointers(std::vector<FLayoutItem>& items) {
    QList<FLayoutItem*> list;
    for (FLayoutItem& item : items) {
        list.append(&item);
    }
    return list;
}

void expectNear(const QPointF& point, const QPointF& expected) {
    EXPECT_NEAR(point.x(), expected.x(), 1e-9);
    EXPECT_NEAR(point.y(), expected.y(), 1e-9);
}

void expectNear(const QRectF& rect, const QRectF& expected) {
    expectNear(rect.topLeft(), expected.topLeft());
    expectNear(rect.bottomRight(), expected.bottomRight());
}

TEST(FSoftConLayoutTest, numbersOfTheSizes) {
    struct Case {
        std::shared_ptr<FSoftConLayout> layout;
        QString name;
        QVector<double> numbers;
    };
    const Case cases[] = {
        {std::make_shared<FSoftConLargeGridLayout>(), "Large", {150, 212, 300, 372, 30, 10, 10, 30, 30, 35, 27, 120}},
        {std::make_shared<FSoftConMediumGridLayout>(), "Medium", {75, 106, 300, 266, 30, 10, 10, 30, 30, 18, 14, 58}},
        {std::make_shared<FSoftConListLayout>(), "Small", {0, 0, 220, 240, 5, 10, 5, 30, 5, 7, 5, 0}},
        {std::make_shared<FSoftConLayout>(), "", {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
    };
    for (const auto& [layout, name, numbers] : cases) {
        const auto text = layout->getIconTextMeasurements();
        EXPECT_EQ(layout->getSizeName(), name);
        EXPECT_EQ(
            (QVector<double>{double(layout->getIconWidth()), double(layout->getIconHeight()), layout->getMinAreaWidth(),
                             layout->getMinAreaHeight(), layout->getItemSpacing(), layout->getFrameLeft(),
                             layout->getFrameTop(), layout->getFrameRight(), layout->getFrameBottom(),
                             double(text.fontSizeThreeLetters), double(text.fontSizeOther), text.gradientStop.y()}),
            numbers)
            << name.toStdString();
        EXPECT_EQ(text.outlined, name != "Small");
    }
}

TEST(FSoftConLayoutTest, itemsOfAGridByHand) {
    // Icons of 75 by 106 in frames of 117 by 146: a quarter of 1000 by 800 holds one row of three.
    std::vector<FLayoutItem> items;
    for (const char* label : {"d", "c", "b", "a"}) {
        items.push_back(makeItem(SoftConInputArea, label, {117, 146}, {-10, -10}));
    }
    items.push_back(makeItem(SoftConExportArea, "x", {117, 146}, {-10, -10}));
    items.push_back(makeItem(SoftConImportArea, "y", {117, 146}, {-10, -10}));
    items.push_back(makeItem(SoftConComputationArea, "z", {100, 100}));
    FOpenLayout<FSoftConMediumGridLayout> layout;
    layout.calcItemRatios(pointers(items));
    const double need = std::sqrt(117.0 * 146);
    EXPECT_EQ(layout.weights(), (QVector<double>{need, 2 * need, 2 * need, need}));

    QRectF scene;
    QRectF area;
    layout.calcSceneRect({0, 0, 1000, 800}, 20, 24, 10, 10, scene, area);
    // Four items don't fit: their area gets two thirds of the view, and then holds four columns.
    expectNear(items[3].position, {40, -196});
    expectNear(items[2].position, {187, -196});
    expectNear(items[1].position, {334, -196});
    expectNear(items[0].position, {481, -196});
    expectNear(items[4].position, {-135, -196});
    expectNear(items[5].position, {-135, 94});
    expectNear(items[6].position, {0, 0});
    expectNear(scene, {-1000.0 / 3, -800.0 * 2 / 3, 1000, 800});
    expectNear(area, scene);
    layout.placeCentreItem(items[6]);
    expectNear(items[6].position, {-50, -30});
}

TEST(FSoftConLayoutTest, rowsOfAListByHand) {
    std::vector<FLayoutItem> items;
    for (const char* label : {"bb", "a", "a", "ccc"}) {
        items.push_back(makeItem(SoftConInputArea, label, {100, 16}, {-40, -5}));
        items.push_back(makeItem(SoftConImportArea, label, {100, 16}, {-40, -5}));
    }
    FOpenLayout<FSoftConListLayout> layout;
    layout.calcItemRatios(pointers(items));
    const double row = 30 + 16 + 10 + 20 + 10 + 15 + 10;
    EXPECT_EQ(items[0].frame.width(), row);
    EXPECT_EQ(layout.weights(), (QVector<double>{4 * row, 4 * row, 64, 64}));
    EXPECT_EQ(layout.getAreaMinWidth(SoftConImportArea), 300);
    expectNear(layout.arrangeItems({0, 0, 1000, 1208}, 20, 24), {-500, -604});
    // Upper rows grow upward, so "ccc" is the lowest one; equal labels keep their order.
    expectNear(items[6].position, {70, -56});
    expectNear(items[0].position, {70, -77});
    expectNear(items[2].position, {70, -98});
    expectNear(items[4].position, {70, -119});
    expectNear(items[3].position, {-row + 10, 65});
    expectNear(items[5].position, {-row + 10, 86});
    expectNear(items[1].position, {-row + 10, 107});
    expectNear(items[7].position, {-row + 10, 128});
    EXPECT_EQ(layout.bounds().left(), -row + 10 - 100);
}

TEST(FSoftConLayoutTest, partsOfAnItem) {
    FLayoutItem item = makeItem(SoftConOutputArea, {}, {});
    item.icon = {75, 106};
    FSoftConMediumGridLayout grid;
    grid.setupItem(item, "folder/sub\\a name.dat", fivePerLetter, true);
    EXPECT_EQ(item.label, "a name.dat");
    EXPECT_EQ(item.labelPosition, QPointF((111 - 10 - 4 - 50) * 0.5, 108));
    EXPECT_TRUE(item.frame.isNull()) << "no frame";
    grid.setupItem(item, QString(40, 'n'), fivePerLetter, false);
    EXPECT_EQ(item.label, QString(22, 'n')) << "cut to 111";
    EXPECT_EQ(item.frame, QRectF(-10, -10, 117, 146));
    EXPECT_EQ(item.buttonPosition, QPointF(76, 0));

    item.icon = {16, 16};
    FSoftConListLayout list;
    list.calcItemRatios({&item});
    list.setupItem(item, "folder/a", fivePerLetter, true);
    EXPECT_EQ(item.label, "folder/a");
    EXPECT_EQ(item.labelPosition, QPointF(26, 1));
    EXPECT_EQ(item.frame, QRectF(-40, -5, 206, 26));
    EXPECT_EQ(item.buttonPosition, QPointF(-30, 0));
}

TEST(FSoftConLayoutTest, onlyAListLaysOutAnewWhenAnItemChanges) {
    struct FCalls final : FLayoutScene {
        void calcItemRatios() override { calls += "calc "; }
        void requestRedraw() override { calls += "redraw"; }
        QString calls;
    };
    FCalls scene;
    FSoftConLargeGridLayout().itemChanged(scene);
    EXPECT_EQ(scene.calls, "");
    FSoftConListLayout().itemChanged(scene);
    EXPECT_EQ(scene.calls, "calc redraw");
}

std::vector<FLayoutItem> randomItems(QRandomGenerator& random, int most) {
    std::vector<FLayoutItem> items;
    const bool hasEqualSizes = random.bounded(2) == 0;
    const QSizeF size(20 + random.bounded(200.0), 10 + random.bounded(200.0));
    for (int count = random.bounded(most + 1); count > 0; --count) {
        const QSizeF own = hasEqualSizes ? size : QSizeF(1 + random.bounded(300.0), 1 + random.bounded(300.0));
        FLayoutItem item = makeItem(SoftConArea(random.bounded(5)), QString::number(random.bounded(20)), own,
                                    {-random.bounded(50.0), -random.bounded(20.0)});
        item.labelSize.setWidth(random.bounded(300.0));
        item.icon = {random.bounded(80.0), random.bounded(80.0)};
        items.push_back(item);
    }
    return items;
}

template <class Layout>
void compareWithLiteral(FLiteralLayout::Size size) {
    for (int seed = 0; seed < randomCases(1500); ++seed) {
        QRandomGenerator random(static_cast<quint32>(seed));
        std::vector<FLayoutItem> items = randomItems(random, random.bounded(4) == 0 ? 200 : 20);
        std::vector<FLayoutItem> expected = items;
        FOpenLayout<Layout> layout;
        FLiteralLayout literal(size);
        layout.calcItemRatios(pointers(items));
        literal.calcItemRatios(pointers(expected));
        ASSERT_EQ(layout.weights(), (QVector<double>{literal.left, literal.right, literal.top, literal.bottom}));
        for (int view = 0; view < 3; ++view) {
            const QRect rect(0, 0, random.bounded(2500), random.bounded(2000));
            const int bar = random.bounded(31);
            const int title = random.bounded(40);
            QRectF scene, area, literalScene, literalArea;
            layout.calcSceneRect(rect, bar, title, 10, 12, scene, area);
            literal.calcSceneRect(rect, bar, title, 10, 12, literalScene, literalArea);
            expectNear(scene, literalScene);
            expectNear(area, literalArea);
            expectNear(layout.bounds(), literal.bounds);
            expectNear(layout.arrangeItems(rect, bar, title), literal.arrangeItems(rect, bar, title));
        }
        for (size_t i = 0; i < items.size(); ++i) {
            expectNear(items[i].position, expected[i].position);
            EXPECT_EQ(items[i].frame, expected[i].frame);
        }
        ASSERT_FALSE(testing::Test::HasFailure()) << "seed " << seed;
    }
}

TEST(FSoftConLayoutTest, randomItemsGoWhereTheLiteralStepsPutThem) {
    compareWithLiteral<FSoftConLargeGridLayout>(FLiteralLayout::Large);
    compareWithLiteral<FSoftConMediumGridLayout>(FLiteralLayout::Medium);
    compareWithLiteral<FSoftConListLayout>(FLiteralLayout::Small);
}

}  // namespace
