#pragma once

#include <QString>

/** The script expression that reads a value from the results of a computation. */
struct FValueReference {
    QString computation;
    QString file;  //!< name of the output file, with its folders
    QString value;

    QString text() const;
};
