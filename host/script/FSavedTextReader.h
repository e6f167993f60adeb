#pragma once

#include "host/core/FExport.h"
#include "host/core/FMerixCtrl.h"
#include "host/script/FDeclarer.h"
#include "host/script/FScriptParser.h"

#include <QHash>

#include <deque>
#include <set>
#include <vector>

/**
 * Reads a saved text, which is data: it declares objects and sets their attributes, in the block of the declaration or
 * as `name.attribute(value)`. Anything else is reported with its place and skipped. The text executes nothing and
 * reads no file.
 *
 * Within the text a name means the object that the text declares, also if the declaration comes later. A line that
 * names an object waits until the block of that object is done. Where objects wait for each other, the first one in the
 * text goes on as soon as the objects exist that it names. Time n log n in the length of the text at most.
 */
class MERIX_EXPORT FSavedTextReader {
 public:
    /**
     * As long as one exists, the texts that are read count as one. At the end of the outermost one, updates that would
     * read files leave the queue; end it before the update blocker around it.
     */
    class MERIX_EXPORT Session {
     public:
        Session();
        ~Session();
        Session(const Session&) = delete;
        Session& operator=(const Session&) = delete;

     private:
        const FBusy mBusy;
    };

    FSavedTextReader(FScriptNames& names, const QString& file)
        : mNames(names), mFile(file), mDeclarer(names, file, FBinder::Use::Saved) {}

    /** Parses a text and reports its errors. */
    static FScript parse(const QString& text, const QString& file, const FParseMode& mode);
    /** Reads a text; returns how many errors there were, each of which has been reported with its place. */
    static int read(const QString& text, const QString& file, const FParseMode& mode, FScriptNames& names);
    /** Returns how many errors there were, each of which has been reported. */
    int read(const FSyntaxBody& statements);
    /** True while a saved text is being read. */
    static bool isReading();

 private:
    /** A statement and how much of it has been executed. */
    struct Statement {
        const FSyntaxDeclaration* declaration = nullptr;
        const FSyntaxExpr* command = nullptr;  //!< the other kind of statement: commands on an object that has a name
        FExprBase object;                      //!< empty until it is made
        std::size_t line = 0;                  //!< of the block: the first that hasn't been executed
        QStringList needs;                     //!< names that the next step needs
        int complete = 0;                      //!< at least this number of them are names of complete objects
        int made = 0;                          //!< at least this number of them are names of objects
        bool isEnded = false;
    };
    /** A name for which there is no complete object yet, and the numbers of the statements that wait for it. */
    struct Awaited {
        bool isMade = false;
        std::vector<std::size_t> untilMade;
        std::vector<std::size_t> untilComplete;
    };

    void announce(const FSyntaxBody& statements);
    void take(const FSyntaxStatement& statement);
    /** Executes the steps that need not wait. */
    void goOn(std::size_t number);
    /** Executes all steps whose objects exist. */
    void workOff();
    void carryOutStep(Statement& statement);
    /** Whether the next step has to wait; the names that it waits for know it. */
    bool mustWaitUntilComplete(std::size_t number);
    bool mustWaitUntilMade(std::size_t number);
    void findNeeds(Statement& statement) const;
    void collectNames(const FSyntaxExpr& expression, QStringList& names) const;
    void create(Statement& statement);
    /** Gives up an object that can't be made before another one, which can't be made before it. */
    void breakRing(Statement& statement);
    void carryOutLine(Statement& statement);
    void carryOutCommand(Statement& statement);
    /** There is an object of that name now, or never will be. */
    void setMade(const QString& name);
    void setComplete(const QString& name);
    /** Counts and reports what failed. */
    void note(FDeclarer::Outcome outcome);
    void report(const FSyntaxError& error);

    FScriptNames& mNames;
    QString mFile;
    FDeclarer mDeclarer;
    std::vector<Statement> mStatements;
    QHash<QString, Awaited> mAwaited;
    std::deque<std::size_t> mReady;
    std::set<std::size_t> mWaiting;  // those that may go on once all objects exist that they name
    int mErrors = 0;
};
