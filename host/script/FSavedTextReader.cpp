#include "host/script/FSavedTextReader.h"

#include "host/core/FImmediateUpdateBlocker.h"
#include "host/core/FLogMsg.h"
#include "host/core/FUpdateGraph.h"

FScript FSavedTextReader::parse(const QString& text, const QString& file, const FParseMode& mode) {
    FScript script = parseScript(text, file, mode);
    for (const FSyntaxError& error : script.errors) {
        FLogMsg::error(error.place.toString(file), error.message);
    }
    return script;
}

int FSavedTextReader::read(const QString& text, const QString& file, const FParseMode& mode, FScriptNames& names) {
    const FScript script = parse(text, file, mode);
    return static_cast<int>(script.errors.size()) + FSavedTextReader(names, file).read(script.statements);
}

namespace {

/** Sessions, each within the one before. */
int nested = 0;

}  // namespace

FSavedTextReader::Session::Session() {
    ++nested;
}

FSavedTextReader::Session::~Session() {
    if (--nested == 0) {
        FUpdateGraph::forgetWaitingThatReadFiles();
    }
}

bool FSavedTextReader::isReading() {
    return nested > 0;
}

int FSavedTextReader::read(const FSyntaxBody& statements) {
    const FImmediateUpdateBlocker blocker;
    const Session session;
    announce(statements);
    for (std::size_t i = 0; i < mStatements.size(); ++i) {
        goOn(i);
    }
    workOff();
    // What is left waits for objects that need each other to be made.
    for (Statement& statement : mStatements) {
        if (!statement.isEnded && statement.declaration && statement.object.isEmpty()) {
            breakRing(statement);
            workOff();
        }
    }
    if (mErrors > mostErrors) {
        FLogMsg::error(mFile, QStringLiteral("%1 more errors").arg(mErrors - mostErrors));
    }
    return mErrors;
}

void FSavedTextReader::announce(const FSyntaxBody& statements) {
    for (const FSyntaxStatement& statement : statements) {
        take(statement);
    }
    for (Statement& statement : mStatements) {
        findNeeds(statement);
    }
}

void FSavedTextReader::take(const FSyntaxStatement& statement) {
    Statement taken;
    taken.declaration = std::get_if<FSyntaxDeclaration>(&statement.content);
    taken.command = std::get_if<FSyntaxExpr>(&statement.content);
    const bool isCommand = taken.command && taken.command->kind == FSyntaxExpr::Kind::Chain &&
                           taken.command->operands.front().kind == FSyntaxExpr::Kind::Name;
    if (!taken.declaration && !isCommand) {
        report(
            {statement.place, QStringLiteral("a saved text may hold declarations and attributes only; passed over")});
        return;
    }
    if (taken.declaration) {
        mNames.announce(taken.declaration->name);
        mAwaited.insert(taken.declaration->name, {});
    }
    mStatements.push_back(std::move(taken));
}

void FSavedTextReader::workOff() {
    while (!mReady.empty() || !mWaiting.empty()) {
        if (!mReady.empty()) {
            const std::size_t number = mReady.front();
            mReady.pop_front();
            goOn(number);
        } else {
            const std::size_t number = *mWaiting.begin();
            mWaiting.erase(mWaiting.begin());
            if (!mStatements[number].isEnded && !mustWaitUntilMade(number)) {
                carryOutStep(mStatements[number]);
                goOn(number);
            }
        }
    }
}

void FSavedTextReader::goOn(std::size_t number) {
    while (!mStatements[number].isEnded && !mustWaitUntilComplete(number)) {
        carryOutStep(mStatements[number]);
    }
}

void FSavedTextReader::carryOutStep(Statement& statement) {
    if (statement.command) {
        carryOutCommand(statement);
    } else if (statement.object.isEmpty()) {
        create(statement);
    } else {
        carryOutLine(statement);
    }
    if (statement.isEnded && statement.declaration) {
        setComplete(statement.declaration->name);
    }
    findNeeds(statement);
}

bool FSavedTextReader::mustWaitUntilComplete(std::size_t number) {
    Statement& statement = mStatements[number];
    for (; statement.complete < statement.needs.size(); ++statement.complete) {
        const auto awaited = mAwaited.find(statement.needs[statement.complete]);
        if (awaited != mAwaited.end()) {
            awaited->untilComplete.push_back(number);
            mWaiting.insert(number);
            return true;
        }
    }
    return false;
}

bool FSavedTextReader::mustWaitUntilMade(std::size_t number) {
    Statement& statement = mStatements[number];
    for (; statement.made < statement.needs.size(); ++statement.made) {
        const auto awaited = mAwaited.find(statement.needs[statement.made]);
        if (awaited != mAwaited.end() && !awaited->isMade) {
            awaited->untilMade.push_back(number);
            return true;
        }
    }
    return false;
}

void FSavedTextReader::findNeeds(Statement& statement) const {
    statement.needs.clear();
    statement.complete = 0;
    statement.made = 0;
    if (statement.isEnded) {
        return;
    }
    if (statement.command) {
        collectNames(*statement.command, statement.needs);
    } else if (statement.object.isEmpty()) {
        collectNames(statement.declaration->creator, statement.needs);
    } else {
        for (const FSyntaxExpr& call : statement.declaration->block[statement.line]) {
            collectNames(call, statement.needs);
        }
        statement.needs.removeAll(statement.declaration->name);
    }
}

void FSavedTextReader::collectNames(const FSyntaxExpr& expression, QStringList& names) const {
    for (const QString& name : expression.getNames()) {
        if (mAwaited.contains(name)) {
            names.append(name);
        }
    }
}

void FSavedTextReader::create(Statement& statement) {
    const FDeclarer::Outcome outcome = mDeclarer.create(*statement.declaration, statement.object);
    note(outcome);
    statement.isEnded = outcome != FDeclarer::Outcome::Done || statement.declaration->block.empty();
    setMade(statement.declaration->name);
}

void FSavedTextReader::breakRing(Statement& statement) {
    report({statement.declaration->creator.place,
            QStringLiteral("\"%1\" can't be made: it needs \"%2\", which in turn needs it")
                .arg(statement.declaration->name, statement.needs[statement.made])});
    statement.isEnded = true;
    setComplete(statement.declaration->name);
}

void FSavedTextReader::carryOutLine(Statement& statement) {
    const auto& block = statement.declaration->block;
    note(mDeclarer.command(statement.object, block[statement.line]));
    statement.isEnded = ++statement.line == block.size();
}

void FSavedTextReader::carryOutCommand(Statement& statement) {
    note(mDeclarer.command(*statement.command));
    statement.isEnded = true;
}

void FSavedTextReader::setMade(const QString& name) {
    const auto awaited = mAwaited.find(name);
    if (awaited != mAwaited.end()) {
        awaited->isMade = true;
        mWaiting.insert(awaited->untilMade.begin(), awaited->untilMade.end());
        awaited->untilMade.clear();
    }
}

void FSavedTextReader::setComplete(const QString& name) {
    setMade(name);
    const Awaited awaited = mAwaited.take(name);
    mReady.insert(mReady.end(), awaited.untilComplete.begin(), awaited.untilComplete.end());
}

void FSavedTextReader::note(FDeclarer::Outcome outcome) {
    if (outcome == FDeclarer::Outcome::Failed) {
        report(mDeclarer.getError());
    } else if (outcome == FDeclarer::Outcome::Null) {
        ++mErrors;
    }
}

void FSavedTextReader::report(const FSyntaxError& error) {
    if (++mErrors <= mostErrors) {
        FLogMsg::error(error.place.toString(mFile), error.message);
    }
}
