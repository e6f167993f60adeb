#pragma once

#include <QtGlobal>

#include <string_view>

/** A part of a text, as byte offsets. */
struct FByteRange {
    qint64 begin = 0;
    qint64 end = 0;

    bool operator==(const FByteRange&) const = default;
    qint64 size() const { return end - begin; }
    std::string_view of(std::string_view text) const {
        return text.substr(static_cast<size_t>(begin), static_cast<size_t>(size()));
    }
};
