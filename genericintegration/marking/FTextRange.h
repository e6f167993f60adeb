#pragma once

/** A part of a document. */
struct FTextRange {
    int begin = 0;  //!< position of its first character
    int length = 0;

    int end() const { return begin + length; }
    bool operator==(const FTextRange&) const = default;
};
