#include "genericintegration/connector/FAreaHints.h"

#include "host/gui/base/FStateColor.h"

#include <QGraphicsScene>
#include <QGraphicsTextItem>
#include <QTextDocument>
#include <QTextOption>

FAreaHints::FAreaHints(QGraphicsScene& scene) {
    static const std::array<QString, filledAreas> texts{
        QStringLiteral("Drop input files here, or press +"),
        QStringLiteral("Drag geometry from Objects here, or press +"),
        QStringLiteral("Drop sample outputs here whose numbers are to be read, or press +"),
        QStringLiteral("Press + to name files that the program writes, or let a scan find them"),
    };
    for (std::size_t area = 0; area < filledAreas; ++area) {
        mTexts[area] = scene.addText(texts[area]);
        mTexts[area]->setAcceptedMouseButtons(Qt::NoButton);
        mTexts[area]->setAcceptDrops(false);
        mTexts[area]->document()->setDefaultTextOption(QTextOption(Qt::AlignCenter));
    }
    updateColors();
}

void FAreaHints::updateColors() {
    for (QGraphicsTextItem* text : mTexts) {
        text->setDefaultTextColor(FStateColor::of(FStateColor::State::Secondary));
    }
}

void FAreaHints::update(const std::vector<FLayoutItem>& items) {
    std::array<bool, filledAreas> isFilled{};
    for (const FLayoutItem& item : items) {
        if (item.area < filledAreas) {
            isFilled[static_cast<std::size_t>(item.area)] = true;
        }
    }
    for (std::size_t area = 0; area < filledAreas; ++area) {
        mTexts[area]->setVisible(!isFilled[area]);
    }
}

// In the middle of the area, away from the computation at the origin.
void FAreaHints::place(const FSceneGeometry& geometry, double titleBarHeight) {
    constexpr double share = 0.7;
    for (std::size_t area = 0; area < filledAreas; ++area) {
        const QRectF free = geometry.areas[area].adjusted(0, titleBarHeight, 0, 0);
        mTexts[area]->setTextWidth(free.width() * share);
        const QRectF text = mTexts[area]->boundingRect();
        mTexts[area]->setPos(free.center() - text.center());
    }
}
