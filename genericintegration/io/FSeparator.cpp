#include "genericintegration/io/FSeparator.h"

#include "genericintegration/io/FExpressionTranslator.h"

#include <re2/re2.h>

#include <QHash>

FSeparator::FSeparator(const QString& expression)
    : mSplitsAtBlanks(expression.startsWith(QLatin1String("\\s")) || expression.startsWith(QLatin1Char(' '))) {
    const FExpressionTranslator translator(expression);
    if (translator.isTooLarge()) {
        mError = QStringLiteral("it is too long, or repeats its parts too often");
        return;
    }
    if (translator.isTranslated()) {
        mNeedsAscii = translator.needsAscii();
        compileLinear(translator.translated());
    }
    if (!mLinear || mNeedsAscii) {
        mSlow = QRegExp(expression);
        mError = mSlow.isValid() ? QString() : mSlow.errorString();
    }
}

FSeparator::~FSeparator() = default;

void FSeparator::compileLinear(const QString& translated) {
    re2::RE2::Options options;
    options.set_longest_match(true);
    options.set_dot_nl(true);
    options.set_log_errors(false);
    const QByteArray bytes = translated.toUtf8();
    auto compiled =
        std::make_unique<re2::RE2>(re2::StringPiece(bytes.constData(), static_cast<size_t>(bytes.size())), options);
    if (compiled->ok()) {
        mLinear = std::move(compiled);
    }
}

std::shared_ptr<const FSeparator> FSeparator::of(const QString& expression) {
    constexpr int mostKept = 16;
    static QHash<QString, std::shared_ptr<const FSeparator>> kept;
    const auto known = kept.constFind(expression);
    if (known != kept.constEnd()) {
        return *known;
    }
    if (kept.size() >= mostKept) {
        kept.clear();
    }
    return *kept.insert(expression, std::make_shared<const FSeparator>(expression));
}
