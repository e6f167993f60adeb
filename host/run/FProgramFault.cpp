#include "host/run/FProgramFault.h"

QString FProgramFault::toSentences() const {
    QString sentences;
    for (const QString& sentence : {text, remedy}) {
        if (!sentence.isEmpty()) {
            sentences += (sentences.isEmpty() ? QString() : QStringLiteral(" ")) + sentence + QLatin1Char('.');
        }
    }
    return sentences;
}
