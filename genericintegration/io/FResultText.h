#pragma once

#include <QString>

#include <string_view>
#include <vector>

#include "genericintegration/io/FFileBytes.h"
#include "genericintegration/io/FTextIndex.h"

/**
 * The text in which values are searched: that of an output file, or a sample.
 *
 * It is held in the encoding of FUtf8; the bytes of a file that is UTF-8 are used as they stand, any other bytes are
 * decoded as a text stream does and never fail. Making it takes time linear in the text. It can be moved, not copied.
 * The bytes of a file may change meanwhile; what is found then may be wrong, but is searched for within the text.
 */
class FResultText {
 public:
    static FResultText fromFile(FFileBytes bytes);
    static FResultText fromString(const QString& text);
    FResultText(FResultText&&) = default;
    FResultText& operator=(FResultText&&) = default;
    ~FResultText() = default;
    Q_DISABLE_COPY(FResultText)

    bool isEmpty() const { return mText.empty(); }
    /** False when the file was cut meanwhile. */
    bool isWhole() const { return mFile.isWhole(); }
    std::string_view text() const { return mText; }
    qint64 size() const { return static_cast<qint64>(mText.size()); }

    /** Size of the text without the white space at its end. */
    qint64 trimmedSize() const { return mTrimmedSize; }
    const FTextIndex& index() const { return mIndex; }

 private:
    FResultText(FFileBytes file, std::string_view text, FTextIndex index);
    FResultText(FFileBytes file, std::vector<char> decoded);

    FFileBytes mFile;
    std::vector<char> mDecoded;
    std::string_view mText;
    qint64 mTrimmedSize;
    FTextIndex mIndex;
};
