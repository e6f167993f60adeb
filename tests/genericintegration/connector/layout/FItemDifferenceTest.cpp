#include "genericintegration/connector/layout/FItemDifference.h"
#include "tests/support/randomCases.h"

#include <gtest/gtest.h>

#include <QRandomGenerator>

namespace {

using Row = FItemDifference::Row;

const FObject* address(quint32 number) {
    return reinterpret_cast<const FObject*>(static_cast<quintptr>(number) * 64);
}

/** Every item against every object. */
void literalDifference(const QVector<Row>& objects, const QVector<Row>& items, QVector<int>& remove,
                       QVector<int>& add) {
    for (int i = 0; i < items.size(); ++i) {
        remove.append(i);
    }
    for (int object = 0; object < objects.size(); ++object) {
        const auto found = std::find_if(remove.begin(), remove.end(),
                                        [&](int item) { return items[item].object == objects[object].object; });
        const FObject* type = objects[object].valueType;
        const FObject* shown = found == remove.end() ? nullptr : items[*found].valueType;
        if (found != remove.end() && (!type || !shown || type == shown)) {
            remove.erase(found);
        } else {
            add.append(object);
        }
    }
}

TEST(FItemDifferenceTest, randomListsGiveTheLiteralDifference) {
    for (int seed = 0; seed < randomCases(5000); ++seed) {
        QRandomGenerator random(static_cast<quint32>(seed));
        const auto rows = [&random] {
            QVector<Row> made;
            for (int count = random.bounded(20); count > 0; --count) {
                made.append(Row{address(1 + random.bounded(15u)), address(random.bounded(3u))});
            }
            return made;
        };
        const QVector<Row> objects = rows();
        const QVector<Row> items = rows();
        QVector<int> remove;
        QVector<int> add;
        literalDifference(objects, items, remove, add);
        const FItemDifference difference(objects, items);
        ASSERT_EQ(difference.itemsToRemove(), remove) << seed;
        ASSERT_EQ(difference.objectsToAdd(), add) << seed;
    }
}

}  // namespace
