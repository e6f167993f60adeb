#pragma once

#include <QByteArray>
#include <QStringList>

#include <random>
#include <vector>

#include "genericintegration/io/FSeparatorSettings.h"
#include "genericintegration/io/FValueDescription.h"

/**
 * Random texts and values in which rules collide: anchors in several cases, letters that fold beyond ASCII, line ends
 * of all kinds, numbers and what only looks like one. Equal seeds give equal cases.
 */
class FReaderCases {
 public:
    explicit FReaderCases(quint32 seed) : mRandom(seed) {}

    int below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(mRandom); }

    /** A text of a sample; with half surrogate pairs if wished. */
    QString text(bool halfPairs);
    /** Bytes of a file: the text in one of the encodings, often damaged. */
    QByteArray file(const QString& text);
    FSeparatorSettings separators();
    std::vector<FValueDescription> values(const QString& text);

 private:
    QString anchor(const QString& text);
    /** A long text of few letters, in which anchors begin and end inside of each other. */
    QString letters();
    QString pick(const QStringList& texts) { return texts.at(below(texts.size())); }

    std::mt19937 mRandom;
};
