#include "genericintegration/io/FTemplateSubstitution.h"

#include "genericintegration/io/FTemplateKeys.h"
#include "genericintegration/templates/FTemplateScanner.h"

#include <utility>

FTemplateSubstitution::FTemplateSubstitution(const FTemplateKeys& keys, Values values, Output output)
    : mKeys(keys), mValues(std::move(values)), mOutput(std::move(output)) {}

void FTemplateSubstitution::run(const QString& text) {
    const QString kept = text;  // a value may change the template during the output
    const QStringView view = kept;
    mTexts.clear();
    FTextPlaces places(view);
    FTemplateScanner scanner(view);
    qsizetype copied = 0;
    while (const auto tag = scanner.next()) {
        copy(view.mid(copied, tag->position - copied));
        replace(*tag, places);
        copied = tag->end();
    }
    const auto lost = scanner.unterminated();
    copy(view.mid(copied, lost.value_or(view.size()) - copied));
    if (lost && mObserver) {
        mObserver({FTagOutcome::Unterminated, {}, FTemplateKeys::notFound, *lost, places});
    }
}

void FTemplateSubstitution::replace(const FTemplateTag& tag, FTextPlaces& places) {
    QString forcedName;
    QStringView name = tag.name;
    if (mForceWindowsLineEndings && name.contains(u'\n')) {
        forcedName = name.toString().replace(u'\n', QLatin1String("\r\n"));
        name = forcedName;
    }
    const int row = mKeys.find(name);
    const bool found = row != FTemplateKeys::notFound;
    if (found) {
        mOutput(valueOf(row));
    }
    if (mObserver) {
        const auto outcome = found ? FTagOutcome::Replaced : FTagOutcome::Unknown;
        mObserver({outcome, name, row, tag.position, places});
    }
}

void FTemplateSubstitution::copy(QStringView piece) {
    if (mForceWindowsLineEndings) {
        for (qsizetype end = piece.indexOf(u'\n'); end >= 0; end = piece.indexOf(u'\n')) {
            mOutput(piece.left(end));
            mOutput(u"\r\n");
            piece = piece.mid(end + 1);
        }
    }
    mOutput(piece);
}

const QString& FTemplateSubstitution::valueOf(int row) {
    const auto [text, isNew] = mTexts.try_emplace(row);
    if (isNew) {
        text->second = mValues(row);
    }
    return text->second;
}
