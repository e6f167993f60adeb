#include "host/core/FNearestName.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr int reach = 2;
constexpr int tooFar = reach + 1;

/**
 * Steps from the first i characters of one text to the first j of the other, one cell for each j - i that can be
 * within reach, and a cell that never is at either end.
 */
using FDiagonals = std::array<int, 2 * reach + 3>;

/**
 * Steps from `a` to `b`, or at least tooFar. No cell beyond the reach is looked at, so that long names cost no square.
 */
int distance(QStringView a, QStringView b) {
    if (qAbs(a.size() - b.size()) > reach) {
        return tooFar;
    }
    FDiagonals oneBefore;
    FDiagonals twoBefore;
    oneBefore.fill(tooFar);
    twoBefore.fill(tooFar);
    for (qsizetype i = 0; i <= a.size(); ++i) {
        FDiagonals now;
        now.fill(tooFar);
        for (std::size_t cell = 1; cell + 1 < now.size(); ++cell) {
            const qsizetype j = i + static_cast<qsizetype>(cell) - 1 - reach;
            if (j < 0 || j > b.size()) {
                continue;
            }
            if (i == 0 || j == 0) {
                now[cell] = static_cast<int>(i + j);
                continue;
            }
            const bool same = a[i - 1] == b[j - 1];
            now[cell] = std::min({oneBefore[cell + 1] + 1, now[cell - 1] + 1, oneBefore[cell] + (same ? 0 : 1)});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1]) {
                now[cell] = std::min(now[cell], twoBefore[cell] + 1);
            }
        }
        twoBefore = std::exchange(oneBefore, now);
    }
    return oneBefore[static_cast<std::size_t>(b.size() - a.size() + reach + 1)];
}

}  // namespace

QString nearestName(const QString& name, const QStringList& known) {
    const QString folded = name.toCaseFolded();
    QString nearest;
    std::pair<int, int> best(tooFar, 0);
    for (const QString& candidate : known) {
        const int steps = distance(folded, candidate.toCaseFolded());
        if (steps >= tooFar || 2 * steps >= name.size()) {
            continue;
        }
        const std::pair<int, int> rank(steps, distance(name, candidate));
        if (rank < best) {
            best = rank;
            nearest = candidate;
        }
    }
    return nearest;
}
