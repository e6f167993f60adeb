#pragma once

#include "genericintegration/marking/FTemplateSpan.h"

#include <QTextCharFormat>
#include <QTextLayout>

#include <array>
#include <vector>

/** The formats of the spans of an input template, in the present colours. */
class FTemplateFormats {
 public:
    FTemplateFormats();

    /** Formats for a line of that length, which don't overlap. */
    QVector<QTextLayout::FormatRange> of(const std::vector<FTemplateSpan>& spans, int length) const;

 private:
    static constexpr int kinds = static_cast<int>(FTemplateSpan::Kind::Match) + 1;

    std::array<QTextCharFormat, kinds> mFormats;
    QTextCharFormat mTextAfterTagError;
};
