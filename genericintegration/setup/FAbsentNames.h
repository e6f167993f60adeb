#pragma once

#include "host/script/FScriptNames.h"
#include "host/script/FSyntaxStatement.h"

/**
 * Takes out of an object area what names objects that are neither in the file nor in the project: who wrote the file
 * was warned that they aren't saved along. An element of a list becomes NULL, a command with such an argument is left
 * out. Each of them is a warning with its place. Time linear in the length.
 */
class FAbsentNames {
 public:
    /** @param names  what names stand for, apart from the objects that the statements declare */
    FAbsentNames(const FScriptNames& names, const QString& source) : mNames(names), mSource(source) {}

    /** To call once. */
    void takeOut(FSyntaxBody& statements);

 private:
    bool isAbsent(const QString& name) const;
    /** The first absent name in an expression, or null. */
    const FSyntaxExpr* absentIn(const FSyntaxExpr& expression) const;
    /** Takes names out of lists. Returns the first one outside of lists, or null. */
    const FSyntaxExpr* takeOutOfLists(FSyntaxExpr& expression);
    bool mayStay(FSyntaxExpr& call);
    void takeOutOfBlock(std::vector<FSyntaxBlockLine>& block);
    void warn(const FSyntaxExpr& name, const QString& consequence);

    const FScriptNames& mNames;
    QString mSource;
    QSet<QString> mDeclared;
    int mCount = 0;
};
