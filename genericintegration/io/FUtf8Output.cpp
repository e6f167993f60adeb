#include "genericintegration/io/FUtf8Output.h"

#include <QIODevice>

#include <cstring>
#include <utility>

namespace {

constexpr int gatheredUnits = 32 * 1024;

}  // namespace

void FUtf8Output::write(QStringView piece) {
    while (!piece.isEmpty() && !mEnded && !mFailed) {
        const QStringView part = piece.left(gatheredUnits - mGathered.size());
        mGathered.append(part.data(), int(part.size()));
        piece = piece.mid(part.size());
        if (mGathered.size() == gatheredUnits) {
            const int whole = gatheredUnits - (std::as_const(mGathered).back().isHighSurrogate() ? 1 : 0);
            send(QStringView(mGathered).left(whole));
            mGathered.remove(0, whole);
        }
    }
}

bool FUtf8Output::finish() {
    send(mGathered);
    mGathered.clear();
    return !mFailed;
}

void FUtf8Output::send(QStringView text) {
    if (mEnded || mFailed) {
        return;
    }
    const QByteArray bytes = text.toUtf8();
    const auto length = qint64(std::strlen(bytes.constData()));
    mFailed = mDevice.write(bytes.constData(), length) != length;
    mEnded = length < bytes.size();
}
