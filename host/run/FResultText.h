#pragma once

#include "host/core/FExport.h"
#include "host/run/FFileBytes.h"
#include "host/run/FTextIndex.h"

#include <QString>

#include <string_view>
#include <vector>

/**
 * The text of an output file, or of a sample of one, with an index of its lines.
 *
 * It is in the encoding of FUtf8: the bytes of a file in UTF-8 are used without a copy, any others are decoded as a
 * QTextStream does, which never fails. Construction takes time linear in the text. Objects can be moved, not copied.
 * The bytes of a mapped file may change later; searches may then give wrong results, but stay within the text.
 */
class MERIX_EXPORT FResultText {
 public:
    static FResultText fromFile(FFileBytes bytes);
    static FResultText fromString(const QString& text);
    FResultText(FResultText&&) = default;
    FResultText& operator=(FResultText&&) = default;
    ~FResultText() = default;
    Q_DISABLE_COPY(FResultText)

    bool isEmpty() const { return mText.empty(); }
    /** False if the file has been truncated since. */
    bool isWhole() const { return mFile.isWhole(); }
    std::string_view text() const { return mText; }
    /** Size in bytes. */
    qint64 size() const { return static_cast<qint64>(mText.size()); }

    /** Size in bytes without trailing white space. */
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
