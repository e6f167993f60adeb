#include "genericintegration/connector/dialogs/FCommandLine.h"

namespace {

/** The parts of a command: words, and what a shell takes for itself. */
struct Token {
    QString text;
    bool isOperator;
};

struct Tokens {
    QList<Token> all;
    QChar openQuote;
};

bool isOperator(QChar character) {
    return QStringLiteral("<>|;&").contains(character);
}

Tokens split(const QString& command) {
    const QChar backslash(QLatin1Char('\\'));
    const QChar doubleQuote(QLatin1Char('"'));
    QList<Token> tokens;
    QString word;
    QChar quote;
    bool isInWord = false;
    const auto endWord = [&] {
        if (isInWord) {
            tokens.append({word, false});
        }
        word.clear();
        isInWord = false;
    };
    for (int i = 0; i < command.size(); ++i) {
        const QChar character = command[i];
        const QChar next = i + 1 < command.size() ? command[i + 1] : QChar();
        const bool isEscape = character == backslash && !next.isNull() && quote != QLatin1Char('\'') &&
                              (quote.isNull() || next == doubleQuote || next == backslash);
        if (isEscape) {
            word += next;
            ++i;
        } else if (quote.isNull() && (character == doubleQuote || character == QLatin1Char('\''))) {
            quote = character;
        } else if (character == quote) {
            quote = QChar();
        } else if (quote.isNull() && character.isSpace()) {
            endWord();
            continue;
        } else if (quote.isNull() && isOperator(character)) {
            endWord();
            tokens.append({character, true});
            continue;
        } else {
            word += character;
        }
        isInWord = true;
    }
    endWord();
    return {tokens, quote};
}

QString adviceFor(const QString& shellCharacter, const QString& command) {
    return shellCharacter == QLatin1String(">")
               ? QStringLiteral(
                     "\">\" isn't needed: what the program prints is kept as stdout.txt. Leave it out, or put "
                     "it between quotes.")
           : command.contains(QLatin1Char('\''))
               ? QStringLiteral("\"%1\" needs a shell. Write sh -c, followed by the whole line between quotes.")
                     .arg(shellCharacter)
               : QStringLiteral("\"%1\" needs a shell. Write: sh -c '%2'").arg(shellCharacter, command.trimmed());
}

}  // namespace

QString FCommandLine::quoted(const QString& word) {
    const Tokens tokens = split(word);
    const bool isPlain = tokens.all.size() == 1 && tokens.openQuote.isNull() && !tokens.all.first().isOperator &&
                         tokens.all.first().text == word;
    QString escaped = word;
    escaped.replace(QLatin1Char('\\'), QLatin1String("\\\\")).replace(QLatin1Char('"'), QLatin1String("\\\""));
    return isPlain ? word : QLatin1Char('"') + escaped + QLatin1Char('"');
}

FCommandLine FCommandLine::parse(const QString& command) {
    const Tokens tokens = split(command);
    FCommandLine line;
    if (!tokens.openQuote.isNull()) {
        line.fault = QStringLiteral("The quote %1 isn't closed.").arg(tokens.openQuote);
    }
    for (int i = 0; i < tokens.all.size(); ++i) {
        const Token& token = tokens.all.at(i);
        const bool isBeforeWord = i + 1 < tokens.all.size() && !tokens.all.at(i + 1).isOperator;
        if (!token.isOperator) {
            line.words.append(token.text);
        } else if (token.text == QLatin1String("<") && isBeforeWord && line.standardInput.isEmpty()) {
            line.standardInput = tokens.all.at(++i).text;
        } else if (token.text == QLatin1String("<") && line.standardInput.isEmpty() && line.fault.isEmpty()) {
            line.fault = QStringLiteral("The name of the file that the program reads must follow \"<\".");
        } else if (line.fault.isEmpty()) {
            line.fault = adviceFor(token.text, command);
        }
    }
    return line;
}
