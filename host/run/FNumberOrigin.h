#pragma once

#include "host/core/FExport.h"
#include "host/run/FNumberFlag.h"

#include <QString>

#include <memory>
#include <string>
#include <vector>

/** A row of an average: where its number is. */
struct FAverageRow {
    qint64 line;    //!< from 1
    qint64 column;  //!< from 1
    double number;
    FNumberFlags flags;
    qint64 textEnd;  //!< in FAverageRows::texts; the text begins where that of the row before ends
};

/** The rows of an average; of very many only the first ones. */
struct FAverageRows {
    static constexpr std::size_t most = 10000;

    qint64 wanted = 0;  //!< number of rows requested
    qint64 count = 0;   //!< number of rows with a number
    std::vector<FAverageRow> rows{};
    std::string texts{};

    bool operator==(const FAverageRows& other) const { return this == &other; }
};

/** Where a number was found in a file, and what was unusual about it. Texts about it are made on request. */
struct FNumberOrigin {
    QString text{};        //!< as in the file; for a mean, the text of its last number
    bool isText = false;   //!< the value is a text, such as a file name, whose number is NaN
    qint64 line = -1;      //!< from 1; -1 if there is no such line
    qint64 column = -1;    //!< of the text's first character, from 1, in UTF-16 units; -1 if nothing was found
    FNumberFlags flags{};  //!< for a mean, those of all rows
    QString oddity{};      //!< the text beside the number that raised a flag, such as "D-01"; or the separator's fault
    qint64 oddLine = -1;   //!< for a mean, the line of the first suspicious row, from 1
    QString anchor{};      //!< the anchor that was looked for
    qint64 anchorLine = -1;                      //!< from 1; -1 if there is none
    qint64 anchorColumn = -1;                    //!< from 1; -1 if there is none
    int markLine = 0;                            //!< the line of the mark, which is negative if it counts upwards
    int valueNumber = -1;                        //!< number of the value in its template, from 0
    std::shared_ptr<const FAverageRows> rows{};  //!< null unless the number is a mean

    /** Whether the value is a text that was found, so that NaN as its number means nothing. */
    bool hasText() const { return isText && !text.isEmpty(); }
    /** The line to look at: of the suspicious row, else of the number. */
    qint64 lineToShow() const { return oddLine > 0 ? oddLine : line; }
};
