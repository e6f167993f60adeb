#pragma once

#include "host/core/FExport.h"
#include "host/script/FDeclarer.h"
#include "host/script/FScriptParser.h"

#include <QHash>

#include <deque>
#include <vector>

/**
 * Reads a saved text, which is data: it declares objects and sets their attributes, in the block of the declaration or
 * as `name.attribute(value)`. Anything else in it is reported,
 * with its place, and passed over; nothing is run by it, and no file is read.
 *
 * Within the text a name means the object that the text declares, also where it declares it further on: what needs an
 * object that isn't there yet is carried out once it is. Time linear in the length of the text.
 */
class MERIX_EXPORT FSavedTextReader {
 public:
    FSavedTextReader(FScriptNames& names, const QString& file)
        : mNames(names), mFile(file), mDeclarer(names, file, FBinder::Use::Saved) {}

    /** Reads a text; returns how many errors there were, each of which has been reported with its place. */
    static int read(const QString& text, const QString& file, const FParseMode& mode, FScriptNames& names);
    /** Returns how many errors there were, each of which has been reported. */
    int read(const FSyntaxBody& statements);

 private:
    /** A statement as far as it has been carried out. */
    struct Statement {
        const FSyntaxDeclaration* declaration = nullptr;
        const FSyntaxExpr* command = nullptr;  //!< the other kind of statement: commands on an object that has a name
        FExprBase object;                      //!< empty until it is made
        std::size_t line = 0;                  //!< of the block: the first that hasn't been carried out
        QStringList needs;                     //!< names that the next thing to do needs
        int need = 0;                          //!< the first of them for which there may be no object yet
        bool isEnded = false;
    };

    void announce(const FSyntaxBody& statements);
    void take(const FSyntaxStatement& statement);
    /** Carries out what can be; the rest waits for a name. */
    void goOn(std::size_t number);
    void workOffReady();
    /** Whether the next thing to do has to wait; it is then known to the name that it waits for. */
    bool mustWait(std::size_t number);
    void findNeeds(Statement& statement) const;
    void collectNames(const FSyntaxExpr& expression, QStringList& names) const;
    void create(Statement& statement);
    /** Gives up an object that can't be made before another one, which can't be made before it. */
    void breakRing(Statement& statement);
    void carryOutLine(Statement& statement);
    void carryOutCommand(Statement& statement);
    /** The name stands for an object now, or never will. */
    void settle(const QString& name);
    /** Takes down what didn't go well. */
    void note(FDeclarer::Outcome outcome);
    void report(const FSyntaxError& error);

    FScriptNames& mNames;
    QString mFile;
    FDeclarer mDeclarer;
    std::vector<Statement> mStatements;
    QHash<QString, std::vector<std::size_t>> mAwaited;  // names, with the statements that wait for them
    std::deque<std::size_t> mReady;
    int mErrors = 0;
};
