#pragma once

#include "host/script/FCmdRow.h"

#include <QSet>
#include <QStringList>

#include <functional>
#include <random>

/**
 * Random statements on the present model, made from the command tables, so that a new command takes part at once: every
 * creator, and every member or function that acts and is a step of the history. Queries appear in the arguments. Most
 * arguments fit.
 */
class FRandomCommands {
 public:
    /** @param files  paths of files that commands may read */
    FRandomCommands(quint32 seed, const QStringList& files);

    /** The rows that statements are made of. */
    static std::vector<const FCmdRow*> getActingRows();
    /** Favours the rows that haven't been executed yet. */
    void favourRest(const QSet<const FCmdRow*>& executed);

    /** A statement; the row that it tries is `getLastRow()`, or null where there are several. */
    QString statement();
    const FCmdRow* getLastRow() const { return mpLastRow; }
    /** Does something, and then fails. */
    QString failingStatement();
    /** Calls in one expression, of which some keep steps of their own: runs, undo, an included script. */
    QString interruptedStatement();
    /** What windows do without a command: names, documentation and flags of an object, as one step. */
    void editObject();

    int pick(int count) { return static_cast<int>(mRandom() % static_cast<unsigned>(count)); }
    bool chance(int percent) { return pick(100) < percent; }

 private:
    const QString& pick(const QStringList& texts) { return texts[pick(texts.size())]; }
    const FCmdRow* pickRow(const std::vector<const FCmdRow*>& rows, const std::function<bool(const FCmdRow&)>& fits);
    /** The name of an object of a class, or `NULL`. */
    QString object(const FObject* type);
    QStringList receivers(const FCmdRow& row) const;
    QString creation(const FCmdRow& row, bool fails);
    QString call(const FCmdRow& row, int depth);
    QString argument(const FCmdArgument& argument, int depth);
    QString listOf(int most, const std::function<QString()>& element);
    QString listArgument(const FCmdType& type, int depth);
    QString text(const QString& argumentName);
    QString number();
    QString value(int depth);
    QString query(int depth);

    std::mt19937 mRandom;
    QStringList mFiles;
    QSet<const FCmdRow*> mFavoured;
    const FCmdRow* mpLastRow = nullptr;
};
