#include "genericintegration/connector/dialogs/FCommandWords.h"

QStringList FCommandWords::split(const QString& command) {
    const QChar backslash(QLatin1Char('\\'));
    const QChar doubleQuote(QLatin1Char('"'));
    QStringList words;
    QString word;
    QChar quote;
    bool isInWord = false;
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
            if (isInWord) {
                words.append(word);
            }
            word.clear();
            isInWord = false;
            continue;
        } else {
            word += character;
        }
        isInWord = true;
    }
    return isInWord ? words << word : words;
}
