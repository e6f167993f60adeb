#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/** What a user says of a program that is to be coupled. */
struct FNewSetUp {
    struct Input {
        QString path;
        bool isTemplate;  //!< otherwise the file is copied as it is
    };

    QString name;
    QString program;
    QStringList arguments;
    QString standardInput;  //!< name of the input file that the program reads from there; empty for none
    std::vector<Input> inputs;
    QStringList outputs;  //!< samples, from which numbers are read
};
