#include "host/gui/panels/FRunSign.h"

using State = FRunRecord::State;

namespace {

const QRectF whole(0.08, 0.08, 0.84, 0.84);

QPainterPath lines(std::initializer_list<std::initializer_list<QPointF>> all) {
    QPainterPath path;
    for (const auto& points : all) {
        path.moveTo(*points.begin());
        for (const QPointF& point : points) {
            path.lineTo(point);
        }
    }
    return path;
}

QPainterPath circle() {
    QPainterPath path;
    path.addEllipse(whole);
    return path;
}

}  // namespace

QPainterPath FRunSign::of(State state) {
    QPainterPath path;
    switch (state) {
        case State::Finished:
            return lines({{{0.1, 0.55}, {0.4, 0.85}, {0.9, 0.2}}});
        case State::UpToDate:
            return lines({{{0.1, 0.4}, {0.4, 0.65}, {0.9, 0.1}}, {{0.1, 0.92}, {0.9, 0.92}}});
        case State::Failed:
            return lines({{{0.15, 0.15}, {0.85, 0.85}}, {{0.85, 0.15}, {0.15, 0.85}}});
        case State::TimedOut:
            path = circle();
            path.addPath(lines({{{0.5, 0.25}, {0.5, 0.5}, {0.7, 0.62}}}));
            return path;
        case State::Cancelled:
            path.addRect(QRectF(0.18, 0.18, 0.64, 0.64));
            return path;
        case State::NotRun:
            path = circle();
            path.addPath(lines({{{0.2, 0.8}, {0.8, 0.2}}}));
            return path;
        case State::Waiting:
            return lines({{{0.15, 0.1}, {0.85, 0.1}, {0.15, 0.9}, {0.85, 0.9}, {0.15, 0.1}}});
        case State::Writing:
        case State::Running:
            return lines({{{0.2, 0.1}, {0.9, 0.5}, {0.2, 0.9}, {0.2, 0.1}}});
        case State::Ready:
            break;
    }
    return circle();
}
