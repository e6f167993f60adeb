#pragma once

#include <QString>

/** The entry that is proposed for a selected part of a line: its name comes from the text before it. */
struct FEntryNameProposal {
    static constexpr int longest = 40;

    FEntryNameProposal(const QString& line, const QString& selection);

    /** The name to create an entry with; for a proposal without a word, "newEntry". */
    static QString usable(const QString& name);

    QString name;      //!< words joined by "_", cut at a word to at most `longest` characters; may be empty
    double value = 0;  //!< of the selection; 0 if it isn't a number
};
