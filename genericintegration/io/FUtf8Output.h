#pragma once

#include <QStringView>

#include <memory>

class QIODevice;

/**
 * Writes a text that arrives in pieces to a device as UTF-8, up to its first NUL.
 *
 * A surrogate pair may be split between two pieces; an unpaired surrogate becomes "?". The bytes are buffered here, so
 * files should be opened unbuffered; then finish() also reports a full disk.
 */
class FUtf8Output {
 public:
    /** The device must be open for writing and outlive this object. */
    explicit FUtf8Output(QIODevice& device);
    Q_DISABLE_COPY_MOVE(FUtf8Output)

    void write(QStringView piece);

    /** Writes the rest of the buffer. Must be called at the end. False if the device didn't take all bytes. */
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
    QChar mHighSurrogate;  //!< awaiting its low surrogate, or NUL
    bool mEnded = false;
    bool mFailed = false;
};
