#pragma once

#include <QString>

/** An input file that a run writes from a template, and how many of its tags get a value. */
struct FSetUpInput {
    QString file;         //!< relative to the folder of the run
    int replaced = 0;     //!< tags that are replaced by a text
    int notReplaced = 0;  //!< tags that name nothing or aren't closed; they are dropped
};
