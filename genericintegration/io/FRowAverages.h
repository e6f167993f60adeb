#pragma once

#include <QtGlobal>

#include <vector>

#include "genericintegration/io/FColumn.h"
#include "genericintegration/io/FFoundValue.h"

class FResultText;
class QRegExp;

/**
 * Averages of columns over a text's last rows. All of them are read in one walk over the rows.
 *
 * A row is a line with a number in the column. The rows wished are looked for in as many last lines, the white space
 * at the text's end left out; with fewer lines than that, in all of them. But if the text begins with a line feed, the
 * lines that are wished beyond the text's are counted off from its end anew.
 */
class FRowAverages {
 public:
    /** A null separator: numbers are found. Text and separator must outlive this object. */
    FRowAverages(const FResultText& text, const QRegExp* separator) : mText(text), mSeparator(separator) {}

    /** Wishes an average for one of some values. */
    void add(size_t value, int column, quint32 rows);

    /** Reads all averages wished and puts them in the place of their values. */
    void read(std::vector<FFoundValue>& found);

 private:
    struct Average {
        size_t value;
        int column;
        quint32 rows;
        qint64 begin;
        FColumn last{};
        FFoundFlags flags{};
        double sum = 0;
        quint32 count = 0;
    };
    void readRows();
    static void addRow(Average& average, FColumn column);
    FFoundValue result(const Average& average) const;

    const FResultText& mText;
    const QRegExp* mSeparator;
    std::vector<Average> mAverages;
};
