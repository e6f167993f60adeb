#pragma once

#include <QList>
#include <QPair>
#include <QStringList>

/** A coupled program as script text: the objects in1, in2 …, out1, out2 …, def, conf and the computation comp. */
struct FSetUp {
    QString program = "sh";
    QStringList arguments;
    QStringList entries;                         ///< as arguments of addEntry: `"height", 40`
    QList<QPair<QString, QString>> inputs;       ///< file name and content
    QList<QPair<QString, QStringList>> results;  ///< file name and values, see value()
    QString settings;                            ///< further lines of the computation's block

    QString text() const;

    /** A set-up whose program is the shell, which gets the script. */
    static FSetUp shell(const QString& script);
    static QString quoted(const QString& text);
    static QString value(const QString& name, int line, int column, const QString& anchor,
                         const QString& occurrence = "First");
    /** The expression that gives a number of the last run. */
    static QString number(const QString& file, const QString& name);

 private:
    QString templatesText(QStringList& names) const;
};
