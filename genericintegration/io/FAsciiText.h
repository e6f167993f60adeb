#pragma once

#include <string_view>

/** Kinds of ASCII characters around the numbers of output files. */
namespace FAsciiText {

constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
constexpr bool isSign(char c) {
    return c == '+' || c == '-';
}
constexpr char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c;
}
constexpr bool isLetter(char c) {
    return (lower(c) >= 'a' && lower(c) <= 'z') || c == '_';
}
constexpr bool isBlank(char c) {
    return c == ' ' || c == '\n' || c == '\t' || c == '\r';
}
/** The letter of an exponent: E, or in other notations of programs D or Q. */
constexpr bool isExponentLetter(char c) {
    return lower(c) == 'e' || lower(c) == 'd' || lower(c) == 'q';
}
constexpr bool isOpening(char c) {
    return c == '(' || c == '[' || c == '{';
}
constexpr bool isClosing(char c) {
    return c == ')' || c == ']' || c == '}';
}

}  // namespace FAsciiText
