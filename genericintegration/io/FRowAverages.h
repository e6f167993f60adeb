#pragma once

#include "genericintegration/io/FColumn.h"
#include "genericintegration/io/FFoundValue.h"

#include <QtGlobal>

#include <memory>
#include <vector>

class FResultText;
class FSeparator;

/**
 * Averages of columns over the last rows of a text, all read in one pass over the rows.
 *
 * A row is a line with a number in the column. An average over N rows reads the last N lines of the text without its
 * trailing white space, or all lines if there are fewer. But if the text starts with a line feed and N exceeds the
 * number of lines, counting continues from the end of the text again.
 */
class FRowAverages {
 public:
    /** A null separator means find-numbers mode. Text and separator must outlive this object. */
    FRowAverages(const FResultText& text, const FSeparator* separator) : mText(text), mSeparator(separator) {}

    /** Adds the average for a value, given by its index. */
    void add(size_t value, int column, quint32 rows);

    /** Reads all averages and stores each at the index of its value. */
    void read(std::vector<FFoundValue>& found);

 private:
    struct Average {
        size_t value;
        int column;
        quint32 rows;
        qint64 begin;
        FColumn last{};
        FFoundFlags flags{};
        QString oddity{};  //!< of the first row with flags
        qint64 oddLine = -1;
        std::shared_ptr<FAverageRows> kept{};
        double sum = 0;
        quint32 count = 0;
    };
    void readRows();
    void addRow(Average& average, FColumn column, qint64 line, qint64 lineBegin) const;
    FFoundValue result(const Average& average) const;

    const FResultText& mText;
    const FSeparator* mSeparator;
    std::vector<Average> mAverages;
};
