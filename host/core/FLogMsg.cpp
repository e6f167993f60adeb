#include "host/core/FLogMsg.h"

#include "host/core/FChanges.h"

#include <iostream>
#include <utility>

namespace {

/**
 * The standard error. A line is written at once, but ended only when the next one differs or something else wants to
 * write, so that its repeats are counted in it and no end of the program loses it.
 */
class FOpenLine {
 public:
    ~FOpenLine() { end(); }

    void print(const QString& line) {
        if (mCount > 0 && line == mLine) {
            ++mCount;
            return;
        }
        end();
        std::cerr << line.toStdString() << std::flush;
        mLine = line;
        mCount = 1;
    }

    void end() {
        if (mCount == 0) {
            return;
        }
        if (mCount > 1) {
            std::cerr << " (" << mCount << " times)";
        }
        std::cerr << std::endl;
        mCount = 0;
    }

 private:
    QString mLine;
    int mCount = 0;
};

FOpenLine& openLine() {
    static FOpenLine line;
    return line;
}

void print(const FLogMsg& message) {
    openLine().print(message.toLine());
}

FLogMsg::Sink& sink() {
    static FLogMsg::Sink current = print;
    return current;
}

bool strictMode = false;
int strictErrors = 0;

FLogMsg::Kind warningKind() {
    return strictMode ? FLogMsg::Kind::Error : FLogMsg::Kind::Warning;
}

void sendWarning(const FLogMsg& message) {
    strictErrors += strictMode ? 1 : 0;
    message.send();
}

const char* wordOf(FLogMsg::Kind kind) {
    return kind == FLogMsg::Kind::Error ? "error: " : kind == FLogMsg::Kind::Warning ? "warning: " : "note: ";
}

/** Whether a text contains a name, not just its letters in the middle of another word. */
bool containsWord(const QString& text, const QString& word) {
    const auto isInWord = [&text](int index) {
        return index >= 0 && index < text.size() && (text[index].isLetterOrNumber() || text[index] == QLatin1Char('_'));
    };
    for (int found = text.indexOf(word); found >= 0; found = text.indexOf(word, found + 1)) {
        if (!isInWord(found - 1) && !isInWord(found + word.size())) {
            return true;
        }
    }
    return false;
}

/** Whether a place, as "file:line", is one of a source. */
bool isPlaceOf(const QString& place, const QString& source) {
    return place.startsWith(source) && (place.size() == source.size() || place[source.size()] == QLatin1Char(':'));
}

bool endsSentence(const QString& text) {
    return !text.isEmpty() && QStringLiteral(".!?:\n").contains(text.back());
}

}  // namespace

QString FLogMsg::toLine() const {
    QString line = QString::fromLatin1(wordOf(kind));
    if (!place.isEmpty()) {
        line += place + QStringLiteral(": ");
    }
    if (!source.isEmpty() && (place.isEmpty() || !(containsWord(message, source) || isPlaceOf(place, source)))) {
        line += source + QStringLiteral(": ");
    }
    line += message;
    if (consequence.isEmpty()) {
        return line;
    }
    return line + (endsSentence(message) ? QStringLiteral(" ") : QStringLiteral(". ")) + consequence;
}

void FLogMsg::endLine() {
    openLine().end();
}

void FLogMsg::send() const {
    sink()(*this);
    emit FChanges::instance()->messageLogged(*this);
}

void FLogMsg::info(const QString& source, const QString& message, const QString& consequence, Stream stream) {
    FLogMsg{Kind::Info, source, message, consequence, stream, {}}.send();
}

void FLogMsg::warning(const QString& source, const QString& message, const QString& consequence, const QString& place) {
    sendWarning({warningKind(), source, message, consequence, Stream::StandardError, place});
}

void FLogMsg::noResult(const QString& source, const QString& message, const QString& place) {
    sendWarning(
        {warningKind(), source, message, QStringLiteral("The result is NULL"), Stream::StandardError, place, true});
}

void FLogMsg::error(const QString& source, const QString& message, const QString& consequence, Stream stream) {
    FLogMsg{Kind::Error, source, message, consequence, stream, {}}.send();
}

void FLogMsg::setStrict(bool strict) {
    strictMode = strict;
}

bool FLogMsg::isStrict() {
    return strictMode;
}

int FLogMsg::getStrictErrors() {
    return strictErrors;
}

FLogMsg::Sink FLogMsg::setSink(Sink fresh) {
    return std::exchange(sink(), fresh ? std::move(fresh) : Sink(print));
}
