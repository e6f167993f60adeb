#pragma once

#include <QStringView>

#include <memory>

class QIODevice;

/**
 * Writes a text that comes in pieces to a device as UTF-8, up to its first NUL.
 *
 * The bytes are those of the whole text: a pair of surrogates may be split between two pieces. A lone surrogate
 * becomes "?". The bytes are gathered, so a file is best opened unbuffered; finish() then tells of a full disk, too.
 */
class FUtf8Output {
 public:
    /** The device must be open for writing and outlive this object. */
    explicit FUtf8Output(QIODevice& device);
    Q_DISABLE_COPY_MOVE(FUtf8Output)

    void write(QStringView piece);

    /** Writes what is still gathered. To be called at the end. False when the device didn't take all bytes. */
    bool finish();

 private:
    qsizetype putPlain(QStringView piece);
    void putUnit(QChar unit);
    void putCharacter(char32_t character);
    void makeRoom();
    void send();

    QIODevice& mDevice;
    std::unique_ptr<char[]> mGathered;
    qsizetype mSize = 0;
    QChar mHighSurrogate;  //!< that the next unit may complete, or NUL
    bool mEnded = false;
    bool mFailed = false;
};
