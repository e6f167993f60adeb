#include "host/run/FCauseLines.h"

#include "host/core/FFile.h"
#include "host/run/FFileBytes.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <string_view>

namespace {

/** Bytes searched at the start and at the end of a file. */
constexpr std::size_t mostBytes = 4 << 20;
/** Characters of a line in a message. */
constexpr int longest = 200;

// Per file.
constexpr int firstCauses = 3;
constexpr int lastCauses = 2;
constexpr int firstLines = 2;
constexpr int lastLines = 3;

bool looksLikeCause(const QString& line) {
    static const QRegularExpression words(
        QStringLiteral("error|\\bfatal|\\bfail(ed|s|ure)?\\b|\\bnot converge|no convergence|\\bdiverge[ds]?\\b|"
                       "\\bcannot\\b|\\bcan ?not\\b|\\bcan't\\b|\\bcould not\\b|\\bcouldn't\\b|\\bunable to\\b|"
                       "\\bexception|traceback|\\bsignal\\b|segmentation|\\babort|\\bnot found\\b|\\bno such\\b|"
                       "\\bpermission denied\\b|\\bout of memory\\b|\\bnot permitted\\b|\\bunknown\\b|\\binvalid\\b|"
                       "\\bkilled\\b|\\bpanic|\\blicen[cs]e not\\b|\\bno licen[cs]e"),
        QRegularExpression::CaseInsensitiveOption);
    // "0 errors", and numbers that a solver calls an error.
    static const QRegularExpression harmless(
        QStringLiteral("\\b(no|0|zero|without( any)?) (fatal )?(errors?|failures?|exceptions?)\\b|"
                       "errors?\\s*(norm|estimate)?\\s*[:=]?\\s*[-+]?[0-9.]+([ed][-+]?[0-9]+)?\\s*%?\\s*$"),
        QRegularExpression::CaseInsensitiveOption);
    return words.match(line).hasMatch() && !harmless.match(line).hasMatch();
}

QString readable(std::string_view bytes) {
    const int most = 4 * longest;
    QString text = QString::fromUtf8(bytes.data(), static_cast<int>(std::min<std::size_t>(bytes.size(), most)));
    for (QChar& character : text) {
        if (character.category() == QChar::Other_Control && character != QLatin1Char('\t')) {
            character = QChar::ReplacementCharacter;
        }
    }
    while (!text.isEmpty() && text.back().isSpace()) {
        text.chop(1);
    }
    return text.size() <= longest ? text : text.left(longest) + QStringLiteral("…");
}

/** Passes each piece between the separators to a function. */
template <class Take>
void split(std::string_view text, char separator, Take take) {
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find(separator, begin), text.size());
        take(text.substr(begin, end - begin));
        begin = end + 1;
    }
}

QString withoutDigits(const QString& text) {
    QString result;
    for (const QChar character : text.simplified()) {
        if (!character.isDigit()) {
            result.append(character);
        }
    }
    // Of numbers alone, the digits are all that there is.
    return result.size() < 4 ? text.simplified() : result;
}

}  // namespace

void FCauseLines::add(const QString& folder, const QString& file) {
    auto device = std::make_unique<QFile>(QDir(folder).filePath(file));
    if (!FFile::openOrdinary(*device).isEmpty()) {
        return;
    }
    const FFileBytes bytes(std::move(device));
    const std::string_view all = bytes.view();
    QList<Line> lines;
    qint64 number = 0;
    const auto append = [&](std::string_view line) {
        ++number;
        // Progress bars write a carriage return alone: each of their states is a line.
        split(line, '\r', [&](std::string_view state) {
            const QString text = readable(state);
            if (!text.trimmed().isEmpty()) {
                lines.append({file, number, text});
            }
        });
    };
    if (all.size() <= 2 * mostBytes) {
        split(all, '\n', append);
    } else {
        const std::size_t headEnd = std::min(all.find('\n', mostBytes), all.size() - mostBytes);
        split(all.substr(0, headEnd), '\n', append);
        const std::size_t tail = std::min(all.find('\n', all.size() - mostBytes) + 1, all.size());
        number = std::count(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(tail), '\n');
        split(all.substr(tail), '\n', append);
    }
    takeCauses(lines);
    takeEnds(lines);
}

bool FCauseLines::take(QList<Line>& to, const Line& line) {
    const QString key = withoutDigits(line.text);
    const bool isNew = !mKnown.contains(key);
    if (isNew) {
        mKnown.insert(key);
        to.append(line);
    }
    return isNew;
}

void FCauseLines::takeCauses(const QList<Line>& lines) {
    QList<Line> causes;
    std::copy_if(lines.begin(), lines.end(), std::back_inserter(causes),
                 [](const Line& line) { return looksLikeCause(line.text); });
    QList<Line> chosen;
    for (int i = 0; i < causes.size() && chosen.size() < firstCauses; ++i) {
        take(chosen, causes[i]);
    }
    const int most = chosen.size() + lastCauses;
    for (int i = causes.size() - 1; i >= 0 && chosen.size() < most; --i) {
        take(chosen, causes[i]);
    }
    std::sort(chosen.begin(), chosen.end(), [](const Line& a, const Line& b) { return a.number < b.number; });
    mCauses += chosen;
}

void FCauseLines::takeEnds(const QList<Line>& lines) {
    // From the end first: of lines that are repeated, the last one is of interest.
    QList<Line> chosen;
    for (int i = lines.size() - 1; i >= std::max(0, static_cast<int>(lines.size()) - lastLines); --i) {
        take(chosen, lines[i]);
    }
    std::reverse(chosen.begin(), chosen.end());
    QList<Line> first;
    for (int i = 0; i < std::min(firstLines, static_cast<int>(lines.size())); ++i) {
        take(first, lines[i]);
    }
    mOthers += first + chosen;
}

QString FCauseLines::toText() const {
    QStringList lines;
    for (const Line& line : mCauses + mOthers) {
        lines.append(QStringLiteral("    %1:%2: %3").arg(line.file, QString::number(line.number), line.text));
    }
    return lines.join(QLatin1Char('\n'));
}

FCauseLines::Line FCauseLines::fromText(const QString& line) {
    static const QRegularExpression form(QStringLiteral("^    ([^:]+):(\\d+): (.*)$"));
    const QRegularExpressionMatch match = form.match(line);
    return match.hasMatch() ? Line{match.captured(1), match.captured(2).toLongLong(), match.captured(3)}
                            : Line{QString(), 0, line};
}
