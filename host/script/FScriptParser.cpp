#include "host/script/FScriptParser.h"

#include "host/script/FExpressionParser.h"
#include "host/script/FStatementParser.h"

namespace {

std::optional<FSyntaxError> sizeError(const QString& text) {
    if (text.size() <= longestScript) {
        return std::nullopt;
    }
    return FSyntaxError{{},
                        QStringLiteral("the script has %1 characters and is not read: the limit is %2, so split it")
                            .arg(text.size())
                            .arg(longestScript)};
}

}  // namespace

FScript parseScript(const QString& text, const QString& file, const FParseMode& mode) {
    FScript script;
    script.file = file;
    if (const auto error = sizeError(text)) {
        script.errors.push_back(*error);
        return script;
    }
    FStatementParser parser(text, mode);
    script.statements = parser.script();
    script.errors = parser.takeErrors();
    script.warnings = parser.takeWarnings();
    script.passedOver = parser.takePassedOver();
    return script;
}

FParsedExpression parseExpression(const QString& text) {
    if (const auto error = sizeError(text)) {
        return {{}, error};
    }
    FLexer lexer(text);
    lexer.ignoreLineEnds();
    FTokenStream tokens(lexer);
    FParsedExpression result{FExpressionParser(tokens).expression(), std::nullopt};
    if (!tokens.isAt(FToken::Kind::End)) {
        tokens.failExpected("the end of the expression");
    }
    if (tokens.hasFailed()) {
        result.error = tokens.takeError();
    }
    return result;
}
