#pragma once

#include <QString>

class FTableData;

/** A row of the table that previews the values of a result template. */
struct FPreviewRow {
    enum class State {
        Found,
        Suspicious,  //!< a number, but perhaps not the one that is meant
        Missing,     //!< no number where one is wanted
    };

    QString header;
    QString value;
    QString type;
    QString toolTip;
    bool isNotANumber = false;    //!< whether `value` says that there is no number
    bool canBeParameter = false;  //!< whether there is a number
    State state = State::Found;
    QString reason;  //!< what is unusual, as the end of a sentence about the value, and what to do; empty if nothing

    FPreviewRow(const FTableData& table, int row);

 private:
    void judge(const FTableData& table, int row);
};
