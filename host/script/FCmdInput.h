#pragma once

#include "host/core/FExport.h"
#include "host/script/FBinder.h"
#include "host/script/FCmdParser.h"
#include "host/script/FScriptParser.h"

#include <QMap>
#include <QTextStream>

#include <functional>

class QFile;

/**
 * Executes script text.
 *
 * Each statement is a step of the history of its own; a loop or branch is one step as a whole. Commands that keep steps
 * of their own, such as undo or a run, interrupt it. A script error (syntax, an unknown name or command) takes back
 * what its statement did and ends the script; a command whose receiver or arguments don't fit gives NULL, with a
 * warning, and the script continues.
 *
 * Saved text is data and isn't executed, see FSavedTextReader.
 */
class MERIX_EXPORT FCmdInput : public FCmdParser {
 public:
    void setVariable(const QString& name, const FExprBase& value) { mNames.setVariable(name, value); }
    const FScriptNames& getNames() const { return mNames; }

    /** Takes the whole of the stream; `file` is the name that messages give. */
    void readInputString(QTextStream& stream, const QString& file = QString());
    /** Takes a whole file, or for "-" the standard input. Returns the reason if that fails, else an empty text. */
    QString readFile(const QString& path);
    /** Executes what was read. False if an error ended it. */
    bool exec();

    /** Executes a script file in between, with the same variables. Called by a running script. */
    bool include(const QString& path);
    /** Ends the running script after the present command; the next one starts as usual. */
    void requestExit(int code);
    int getExitCode() const { return mExitCode; }
    /** Whether the script has ended itself. */
    bool isExiting() const { return mExiting; }
    /** The value of the last statement that was an expression; empty for NULL, and if there was none. */
    const FExprBase& getLastValue() const { return mLastValue; }
    /** How often each command such as `run` failed, and the script ignored its result. */
    const QMap<QString, int>& getIgnoredFailures() const { return mIgnoredFailures; }
    /** A path in the script: relative to its file if such a file exists, else to the current folder. */
    QString resolvePath(const QString& path) const;

    /** The one being executed; null if there is none. */
    static FCmdInput* current();
    /** Sets what is called after each statement of a script, so that a window can take input; null for nothing. */
    static void setPause(std::function<void()> pause);

 private:
    /** The text of a script and where it is from. */
    struct FSource {
        QString text;
        QString file;
        int invalidLine = 0;  //!< the first line, from 1, with bytes that aren't UTF-8; 0 if there is none

        /** Reads an open file. Returns the reason if that fails. */
        QString read(QFile& opened);
    };

    bool run(const FSource& source);
    void addIgnoredFailures(const FSyntaxExpr& call, int count);
    bool runBody(const FSyntaxBody& body);
    bool runStatement(const FSyntaxStatement& statement);
    bool run(const FSyntaxExpr& expression);
    bool run(const FSyntaxDeclaration& declaration);
    bool run(const FSyntaxAssignment& assignment);
    bool run(const FSyntaxIf& branches);
    bool run(const FSyntaxWhile& loop);
    bool run(const FSyntaxFor& loop);

    /** Binds and evaluates; nothing if that failed, with the error reported. */
    std::optional<FExprBase> evaluate(const FSyntaxExpr& expression);
    std::optional<bool> evaluateCondition(const FSyntaxExpr& expression);
    /** False, reported, for the name of an object. */
    bool canBeVariable(const QString& name, const FPlace& place);
    bool report(const FPlace& place, const QString& message);
    bool countStep(const FPlace& place);

    FSource mSource;
    QString mFile;  //!< of the script being executed, which may be an included one
    FScriptNames mNames;
    FPlace mStatementPlace;
    int mErrors = 0;
    int mIncludes = 0;
    qint64 mSteps = 0;
    int mExitCode = 0;
    QMap<QString, int> mIgnoredFailures;
    FExprBase mLastValue;
    bool mExiting = false;
};
