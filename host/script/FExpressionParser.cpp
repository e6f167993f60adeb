#include "host/script/FExpressionParser.h"

#include "host/core/FNumberText.h"
#include "host/core/FQuotedText.h"

#include <QLocale>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>

namespace {

using Kind = FToken::Kind;
using Node = FSyntaxExpr::Kind;

/** The operator that a token is, either between two operands or before one. */
std::optional<FOperator> findOperator(int priority, Kind token) {
    const auto* found = std::find_if(operatorRows.begin(), operatorRows.end(), [priority, token](const auto& row) {
        return row.priority == priority && row.token == token;
    });
    return found == operatorRows.end() ? std::nullopt : std::optional(found->kind);
}

FLiteral numberValue(QStringView text) {
    const QByteArray digits = text.toLatin1();
    qint64 integer = 0;
    const auto result = std::from_chars(digits.begin(), digits.end(), integer);
    if (result.ec == std::errc() && result.ptr == digits.end()) {
        return integer;
    }
    return numberFromText(text).value_or(std::nan(""));
}

/** The significant digits of a number as it is written, without zeros at either end. */
QString significantDigits(QStringView text) {
    QString digits;
    for (const QChar c : text) {
        if (c == 'e' || c == 'E') {
            break;
        }
        if (c.isDigit() && (c != '0' || !digits.isEmpty())) {
            digits += c;
        }
    }
    while (digits.endsWith(QLatin1Char('0'))) {
        digits.chop(1);
    }
    return digits;
}

/** Whether a number has more digits than it keeps when it is read. */
bool losesDigits(QStringView text, double value) {
    constexpr int alwaysKept = 15;
    constexpr int longest = 60;
    const QString digits = significantDigits(text);
    if (digits.size() <= alwaysKept || value == 0) {
        return false;
    }
    return digits.size() > longest || significantDigits(QString::number(value, 'e', digits.size() - 1)) != digits;
}

}  // namespace

FSyntaxExpr FExpressionParser::expression() {
    const FTokenStream::Level level(mTokens);
    return row(leastPriority);
}

FSyntaxExpr FExpressionParser::row(int priority) {
    if (priority == prefixPriority) {
        return unary();
    }
    FSyntaxExpr first = row(priority + 1);
    std::optional<FOperator> op = findOperator(priority, mTokens.kind());
    if (!op) {
        return first;
    }
    FSyntaxExpr row = beginRow(Node::Row, std::move(first));
    for (; op; op = findOperator(priority, mTokens.kind())) {
        addOperator(row, *op);
        FSyntaxExpr operand = this->row(priority + 1);
        const int height = std::max(row.height, operand.height) + 1;
        addOperand(row, std::move(operand), height);
    }
    return row;
}

FSyntaxExpr FExpressionParser::unary() {
    const std::optional<FOperator> op = findOperator(prefixPriority, mTokens.kind());
    if (!op) {
        return power();
    }
    const FTokenStream::Level level(mTokens);
    FSyntaxExpr result = begin(Node::Unary);
    addOperator(result, *op);
    FSyntaxExpr operand = unary();
    const int height = operand.height + 1;
    addOperand(result, std::move(operand), height);
    return result;
}

FSyntaxExpr FExpressionParser::power() {
    FSyntaxExpr base = chain();
    if (!mTokens.isAt(Kind::Caret)) {
        return base;
    }
    const FTokenStream::Level level(mTokens);
    FSyntaxExpr row = beginRow(Node::Row, std::move(base));
    addOperator(row, FOperator::Power);
    FSyntaxExpr exponent = unary();
    const int height = std::max(row.height, exponent.height) + 1;
    addOperand(row, std::move(exponent), height);
    return row;
}

FSyntaxExpr FExpressionParser::chain() {
    FSyntaxExpr receiver = primary();
    if (!mTokens.isAt(Kind::Dot)) {
        return receiver;
    }
    FSyntaxExpr chain = beginRow(Node::Chain, std::move(receiver));
    while (mTokens.isAt(Kind::Dot)) {
        FSyntaxExpr next = command();
        const int height = std::max(chain.height + 1, next.height);
        addOperand(chain, std::move(next), height);
    }
    return chain;
}

FSyntaxExpr FExpressionParser::primary() {
    switch (mTokens.kind()) {
        case Kind::Number:
            return number();
        case Kind::Text:
            return literal(unquoteText(mTokens.current().text).value_or(QString()));
        case Kind::True:
            return literal(true);
        case Kind::False:
            return literal(false);
        case Kind::Null:
            return literal(std::monostate());
        case Kind::Name:
            return nameOrCall();
        case Kind::LeftBracket:
            return list();
        case Kind::LeftParen:
            return group();
        default:
            mTokens.failExpected("a value");
            return {};
    }
}

FSyntaxExpr FExpressionParser::literal(FLiteral value) {
    FSyntaxExpr node = begin(Node::Literal);
    node.literal = std::move(value);
    mTokens.advance();
    return node;
}

FSyntaxExpr FExpressionParser::number() {
    const FLiteral value = numberValue(mTokens.current().text);
    const double* number = std::get_if<double>(&value);
    if (number != nullptr && std::isinf(*number)) {
        mTokens.fail(mTokens.current().place, QLatin1String("the number ") + mTokens.current().toString() +
                                                  QLatin1String(" is too large: numbers end at about 1.8e308"));
    }
    warnOfNumber(number != nullptr ? *number : static_cast<double>(std::get<qint64>(value)));
    return literal(value);
}

void FExpressionParser::warnOfNumber(double value) {
    const FToken& token = mTokens.current();
    const QString readAs = QStringLiteral("\"%1\" is read as %2")
                               .arg(token.text.toString(), QString::number(value, 'g', QLocale::FloatingPointShortest));
    if (token.text.size() > 1 && token.text[0] == '0' && token.text[1].isDigit()) {
        mTokens.warn(token.place, readAs + QStringLiteral(": zeros at the front have no meaning"));
    } else if (losesDigits(token.text, value)) {
        mTokens.warn(token.place, readAs + QStringLiteral(": a number keeps about 16 digits"));
    }
}

FSyntaxExpr FExpressionParser::nameOrCall() {
    FSyntaxExpr node = begin(Node::Name);
    node.name = mTokens.current().text.toString();
    mTokens.advance();
    if (mTokens.isAt(Kind::LeftParen)) {
        node.kind = Node::Call;
        arguments(node, "\"(\"");
    }
    return node;
}

FSyntaxExpr FExpressionParser::command() {
    mTokens.advance();
    FSyntaxExpr node = begin(Node::Call);
    node.name = mTokens.current().text.toString();
    mTokens.expect(Kind::Name, "the name of a command after the dot");
    arguments(node, "\"(\" after the name of the command");
    return node;
}

FSyntaxExpr FExpressionParser::list() {
    FSyntaxExpr node = begin(Node::List);
    mTokens.advance();
    elements(node, Kind::RightBracket, "\"]\" after the elements of the list");
    return node;
}

FSyntaxExpr FExpressionParser::group() {
    mTokens.advance();
    FSyntaxExpr inner = expression();
    mTokens.expect(Kind::RightParen, "\")\" after the expression");
    return inner;
}

void FExpressionParser::arguments(FSyntaxExpr& call, const char* expectedParen) {
    mTokens.expect(Kind::LeftParen, expectedParen);
    elements(call, Kind::RightParen, "\")\" after the arguments");
}

void FExpressionParser::elements(FSyntaxExpr& node, Kind close, const char* expectedClose) {
    if (mTokens.hasFailed() || mTokens.accept(close)) {
        return;
    }
    do {
        FSyntaxExpr element = expression();
        const int height = std::max(node.height, element.height + 1);
        addOperand(node, std::move(element), height);
    } while (mTokens.accept(Kind::Comma));
    mTokens.expect(close, expectedClose);
}

FSyntaxExpr FExpressionParser::begin(Node kind) const {
    FSyntaxExpr node;
    node.kind = kind;
    node.place = mTokens.current().place;
    return node;
}

FSyntaxExpr FExpressionParser::beginRow(Node kind, FSyntaxExpr first) const {
    FSyntaxExpr node;
    node.kind = kind;
    node.place = first.place;
    node.height = first.height;
    node.operands.push_back(std::move(first));
    return node;
}

void FExpressionParser::addOperator(FSyntaxExpr& node, FOperator kind) {
    node.operators.push_back({kind, mTokens.current().place});
    mTokens.advance();
}

void FExpressionParser::addOperand(FSyntaxExpr& node, FSyntaxExpr operand, int height) {
    if (height > greatestHeight) {
        mTokens.fail(operand.place,
                     QStringLiteral("more than %1 operators or commands in one expression: use variables "
                                    "for parts of it")
                         .arg(greatestHeight));
    }
    node.height = height;
    node.operands.push_back(std::move(operand));
}
