#pragma once

#include "genericintegration/io/FSeparatorSettings.h"
#include "genericintegration/io/FValueDescription.h"

#include <QByteArray>
#include <QStringList>

#include <random>
#include <vector>

/**
 * Random texts and values that combine difficult cases: anchors in several cases, letters that fold beyond ASCII, line
 * ends of all kinds, numbers and texts that only look like one. Equal seeds give equal cases.
 */
class FReaderCases {
 public:
    explicit FReaderCases(quint32 seed) : mRandom(seed) {}

    int below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(mRandom); }

    /** A text of a sample; with unpaired surrogates on request. */
    QString text(bool unpaired);
    /** Bytes of a file: the text in a random encoding, often damaged. */
    QByteArray file(const QString& text);
    FSeparatorSettings separators();
    std::vector<FValueDescription> values(const QString& text);

 private:
    QString anchor(const QString& text);
    /** A long text of few letters, in which anchors overlap. */
    QString letters();
    QString pick(const QStringList& texts) { return texts.at(below(texts.size())); }

    std::mt19937 mRandom;
};
