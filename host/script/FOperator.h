#pragma once

#include "host/script/FToken.h"

#include <array>

/** What an operator of the script language does. */
enum class FOperator {
    Or,
    And,
    Equal,
    NotEqual,
    Less,
    LessEqual,
    Greater,
    GreaterEqual,
    Add,
    Subtract,
    Multiply,
    Divide,
    Modulo,
    Power,
    Plus,
    Minus,
    Not
};

/** How an operator is written and parsed. */
struct FOperatorRow {
    FOperator kind;
    FToken::Kind token;
    const char* text;
    int priority;  //!< a higher one binds tighter; those of `prefixPriority` precede their operand
};

constexpr int leastPriority = 1;
constexpr int comparisonPriority = 3;
constexpr int prefixPriority = 6;

/** All operators, in the order of `FOperator`. */
constexpr std::array operatorRows{
    FOperatorRow{FOperator::Or, FToken::Kind::Or, "||", leastPriority},
    FOperatorRow{FOperator::And, FToken::Kind::And, "&&", 2},
    FOperatorRow{FOperator::Equal, FToken::Kind::Equal, "==", comparisonPriority},
    FOperatorRow{FOperator::NotEqual, FToken::Kind::NotEqual, "!=", comparisonPriority},
    FOperatorRow{FOperator::Less, FToken::Kind::Less, "<", comparisonPriority},
    FOperatorRow{FOperator::LessEqual, FToken::Kind::LessEqual, "<=", comparisonPriority},
    FOperatorRow{FOperator::Greater, FToken::Kind::Greater, ">", comparisonPriority},
    FOperatorRow{FOperator::GreaterEqual, FToken::Kind::GreaterEqual, ">=", comparisonPriority},
    FOperatorRow{FOperator::Add, FToken::Kind::Plus, "+", 4},
    FOperatorRow{FOperator::Subtract, FToken::Kind::Minus, "-", 4},
    FOperatorRow{FOperator::Multiply, FToken::Kind::Star, "*", 5},
    FOperatorRow{FOperator::Divide, FToken::Kind::Slash, "/", 5},
    FOperatorRow{FOperator::Modulo, FToken::Kind::Percent, "%", 5},
    FOperatorRow{FOperator::Power, FToken::Kind::Caret, "^", 7},
    FOperatorRow{FOperator::Plus, FToken::Kind::Plus, "+", prefixPriority},
    FOperatorRow{FOperator::Minus, FToken::Kind::Minus, "-", prefixPriority},
    FOperatorRow{FOperator::Not, FToken::Kind::Not, "!", prefixPriority},
};

constexpr const FOperatorRow& rowOf(FOperator op) {
    return operatorRows.at(static_cast<std::size_t>(op));
}
