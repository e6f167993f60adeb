#include "genericintegration/setup/FAbsentNames.h"

#include "genericintegration/setup/FObjectAreaParts.h"
#include "host/core/FEnumBase.h"
#include "host/core/FLogMsg.h"
#include "host/script/FScriptParser.h"

#include <algorithm>
#include <utility>

bool FAbsentNames::isAbsent(const QString& name) const {
    return !mDeclared.contains(name) && !mNames.isAnnounced(name) && !FEnumTable::isWord(name) &&
           mNames.find(name).isEmpty();
}

const FSyntaxExpr* FAbsentNames::absentIn(const FSyntaxExpr& expression) const {
    if (expression.kind == FSyntaxExpr::Kind::Name) {
        return isAbsent(expression.name) ? &expression : nullptr;
    }
    for (const FSyntaxExpr& operand : expression.operands) {
        if (const FSyntaxExpr* absent = absentIn(operand)) {
            return absent;
        }
    }
    return nullptr;
}

void FAbsentNames::warn(const FSyntaxExpr& name, const QString& consequence) {
    if (++mCount <= mostErrors) {
        FLogMsg::warning(name.place.toString(mSource),
                         QStringLiteral("nothing is named \"%1\"%2").arg(name.name, mNames.suggestion(name.name)),
                         consequence);
    }
}

const FSyntaxExpr* FAbsentNames::takeOutOfLists(FSyntaxExpr& expression) {
    if (expression.kind == FSyntaxExpr::Kind::Name) {
        return absentIn(expression);
    }
    const FSyntaxExpr* outside = nullptr;
    for (FSyntaxExpr& operand : expression.operands) {
        const bool isElement = expression.kind == FSyntaxExpr::Kind::List && operand.kind != FSyntaxExpr::Kind::List;
        const FSyntaxExpr* absent = isElement ? absentIn(operand) : takeOutOfLists(operand);
        if (absent && isElement) {
            warn(*absent, QStringLiteral("NULL is read instead"));
            FSyntaxExpr null;
            null.place = operand.place;
            operand = null;
        } else if (absent && !outside) {
            outside = absent;
        }
    }
    return outside;
}

bool FAbsentNames::mayStay(FSyntaxExpr& call) {
    const FSyntaxExpr* absent = takeOutOfLists(call);
    if (absent) {
        warn(*absent, QStringLiteral("\"%1\" is left out").arg(call.name));
    }
    return !absent;
}

void FAbsentNames::takeOutOfBlock(std::vector<FSyntaxBlockLine>& block) {
    for (FSyntaxBlockLine& line : block) {
        FSyntaxBlockLine kept;
        for (FSyntaxExpr& call : line) {
            if (mayStay(call)) {
                kept.push_back(std::move(call));
            }
        }
        line = std::move(kept);
    }
    block.erase(std::remove_if(block.begin(), block.end(), [](const FSyntaxBlockLine& line) { return line.empty(); }),
                block.end());
}

void FAbsentNames::takeOut(FSyntaxBody& statements) {
    const QStringList declared = FObjectAreaParts::declaredNames(statements);
    mDeclared = QSet<QString>(declared.begin(), declared.end());
    for (FSyntaxStatement& statement : statements) {
        if (auto* declaration = std::get_if<FSyntaxDeclaration>(&statement.content)) {
            takeOutOfBlock(declaration->block);
        }
    }
    if (mCount > mostErrors) {
        FLogMsg::warning(mSource, QStringLiteral("%1 more names stand for nothing").arg(mCount - mostErrors));
    }
}
