#include "genericintegration/setup/FTagProblems.h"

#include "genericintegration/io/FTemplateKeys.h"
#include "genericintegration/templates/FExportsGroup.h"
#include "genericintegration/templates/FGenIntFile.h"
#include "genericintegration/templates/FTemplateScanner.h"
#include "genericintegration/templates/FTemplateTags.h"
#include "host/core/FNearestName.h"

#include <algorithm>
#include <functional>
#include <numeric>

namespace {

/** Names of one template that are reported one by one: each is compared with all that there are. */
constexpr int mostUnknown = 20;
constexpr int longestShown = 40;

QString shortened(const QString& text) {
    return text.size() > longestShown ? text.left(longestShown) + QStringLiteral("…") : text;
}

QString shown(QStringView text) {
    const auto lineEnd = std::find(text.begin(), text.end(), u'\n');
    return shortened(text.left(lineEnd - text.begin()).toString().trimmed());
}

bool isBlank(QChar c) {
    return c == u' ' || c == u'\t';
}

/** Whether a character can start a field of a table; separators and signs of comments can't. */
bool startsField(QChar c) {
    return c.isLetterOrNumber() || c == u'+' || c == u'-' || c == u'.' || c == u'<';
}

/** Whether a word begins at a position that is too long for a unit. */
bool isLongWord(const QString& text, qsizetype position) {
    constexpr qsizetype longestUnit = 3;
    const QStringView start = QStringView(text).mid(position, longestUnit + 1);
    return start.size() > longestUnit && std::all_of(start.begin(), start.end(), [](QChar c) { return c.isLetter(); });
}

/** The name without the indices of its levels, which tags don't have. */
QString withoutIndices(const QString& name) {
    QStringList levels = name.split(u'|', Qt::SkipEmptyParts);
    for (QString& level : levels) {
        level = level.left(level.endsWith(u']') ? level.lastIndexOf(u'[') : -1).trimmed();
    }
    return levels.join(u'|');
}

/** Whether a text between angle brackets is "entry" with swapped letters, a missing or a wrong one, or with blanks. */
bool isMisspelled(QStringView inBrackets) {
    const QString word = QStringLiteral("entry");
    QString text = inBrackets.toString().toCaseFolded().remove(u' ');
    text.remove(0, text.startsWith(u'/') ? 1 : 0);
    if (text == word) {
        return inBrackets.contains(u' ');
    }
    for (int left = 0; text.size() == word.size() - 1 && left < word.size(); ++left) {
        if (text == QString(word).remove(left, 1)) {
            return true;
        }
    }
    if (text.size() != word.size()) {
        return false;
    }
    const auto wrong =
        word.size() - std::inner_product(text.begin(), text.end(), word.begin(), 0, std::plus<>(), std::equal_to<>());
    return wrong == 1 || std::is_permutation(text.begin(), text.end(), word.begin());
}

}  // namespace

FTagProblems::FTagProblems(const FGenIntFile& file, const FTemplateKeys* keys, const QStringList& names)
    : mFile(file),
      mText(file.getPlainContent()),
      mKeys(keys),
      mNames(names),
      mPlaces(mText),
      mInput{file.getFileName()} {}

void FTagProblems::find(FProblemList& problems, FTagUses& uses) {
    FTemplateScanner scanner(mText);
    while (const auto tag = scanner.next()) {
        findLoneClosing(mEnd, tag->position, problems);
        look(*tag, problems, uses);
        mEnd = tag->end();
    }
    const auto lost = scanner.unterminated();
    findLoneClosing(mEnd, lost ? *lost : mText.size(), problems);
    if (lost) {
        findUnclosed(*lost, problems);
        ++mInput.notReplaced;
        uses.isCut = true;
    }
    if (mUnknown.size() > mostUnknown) {
        problems.error(mFile.getName(), QStringLiteral("%1 more tags name no entry").arg(mUnknown.size() - mostUnknown),
                       QStringLiteral("Correct the first ones, and check again"));
    }
    findMisspelledMarker(problems);
    findForeignBytes(problems);
    findNul(problems);
}

void FTagProblems::look(const FTemplateTag& tag, FProblemList& problems, FTagUses& uses) {
    const int row = mKeys ? mKeys->find(tag.name) : FTemplateKeys::notFound;
    const bool isFound = row != FTemplateKeys::notFound;
    ++(isFound ? mInput.replaced : mInput.notReplaced);
    if (!mHasCapitals && !QStringView(mText).mid(tag.position).startsWith(FTemplateTags::openingMarker)) {
        mHasCapitals = true;
        problems.warning(mFile.getName(),
                         QStringLiteral("the tag \"%1\" is spelled in capitals; it is replaced, but editors and the "
                                        "list of the names in the template overlook it")
                             .arg(shown(QStringView(mText).mid(tag.position, tag.length))),
                         QStringLiteral("Write <entry> and </entry> in small letters"), placeOf(tag.position));
    }
    if (isFound && !uses.places.contains(row)) {
        uses.places.insert(row, placeOf(tag.position));
    }
    if (isFound && !uses.fieldPlaces.contains(row) && hasTextAfter(tag)) {
        uses.fieldPlaces.insert(row, placeOf(tag.position));
    }
    if (isFound && !uses.columnPlaces.contains(row) && isColumn(tag)) {
        uses.columnPlaces.insert(row, placeOf(tag.position));
    }
    const bool holdsTag = tag.name.contains(FTemplateTags::openingMarker, Qt::CaseInsensitive);
    if (!isFound && (holdsTag || tag.name.contains(u'\n'))) {
        const QString place = placeOf(tag.position);
        problems.error(mFile.getName(),
                       QStringLiteral("the tag \"<entry>%1\" isn't closed; the text up to the \"</entry>\" in line %2 "
                                      "is taken for its name, and is missing in %3")
                           .arg(shown(tag.name), QString::number(mPlaces.at(tag.end() - 1).line), mInput.file),
                       QStringLiteral("Write </entry> after the name"), place);
        uses.isCut = true;
    } else if (!isFound && mKeys) {
        findUnknown(tag, placeOf(tag.position), problems);
    }
}

void FTagProblems::findUnclosed(qsizetype position, FProblemList& problems) {
    const QStringView lost = QStringView(mText).mid(position);
    const auto lines = std::count(lost.begin(), lost.end(), u'\n');
    const QString rest = lines > 0 ? QStringLiteral("it and the %1 lines after it are").arg(lines)
                                   : QStringLiteral("it and the rest of its line are");
    problems.error(mFile.getName(),
                   QStringLiteral("the tag \"%1\" isn't closed; %2 missing in %3").arg(shown(lost), rest, mInput.file),
                   QStringLiteral("Write </entry> after the name"), placeOf(position));
}

void FTagProblems::findUnknown(const FTemplateTag& tag, const QString& place, FProblemList& problems) {
    const QString name = tag.name.toString();
    if (mUnknown.contains(name)) {
        return;
    }
    mUnknown.insert(name);
    if (mUnknown.size() <= mostUnknown) {
        const bool hasBlanks = name != name.trimmed();
        addRemedy(name, problems.error(mFile.getName(),
                                       QStringLiteral("the tag \"%1\" names no entry%2, and is left out of %3")
                                           .arg(FTemplateTags::tagOf(shortened(name)),
                                                hasBlanks ? QStringLiteral(" with blanks around its name") : QString(),
                                                mInput.file),
                                       QString(), place));
    }
}

void FTagProblems::addRemedy(const QString& name, FSetUpProblem& problem) const {
    const QString bare = withoutIndices(name);
    QString pattern = QStringLiteral("Did you mean \"%1\"?");
    problem.right = nearestName(bare, mNames);
    for (const QString& candidate : {FExportsGroup::prefix() + name.trimmed(), name.trimmed(), bare}) {
        if (candidate != name && mKeys->find(candidate) != FTemplateKeys::notFound) {
            problem.right = candidate;
            pattern = QStringLiteral("Write \"%1\"");
        }
    }
    if (problem.right.isEmpty()) {
        problem.remedy = QStringLiteral("Add an entry of that name to the definition, or correct the tag");
    } else {
        problem.wrong = name;
        problem.remedy = pattern.arg(FTemplateTags::tagOf(problem.right));
    }
}

// Only the first one: the others most likely belong to the same mistake.
void FTagProblems::findLoneClosing(qsizetype begin, qsizetype end, FProblemList& problems) {
    const qsizetype found =
        mHasLoneClosing
            ? -1
            : QStringView(mText).mid(begin, end - begin).indexOf(FTemplateTags::closingMarker, 0, Qt::CaseInsensitive);
    if (found >= 0) {
        mHasLoneClosing = true;
        problems.warning(mFile.getName(),
                         QStringLiteral("\"</entry>\" closes no tag, and is written to %1 as it is").arg(mInput.file),
                         QStringLiteral("If it belongs to a tag, write <entry> before the name"),
                         placeOf(begin + found));
    }
}

// Only the first one, since a template may use such a word for something else.
void FTagProblems::findMisspelledMarker(FProblemList& problems) {
    constexpr int longest = 12;
    for (int position = mText.indexOf(u'<'); position >= 0; position = mText.indexOf(u'<', position + 1)) {
        const QStringView word = QStringView(mText).mid(position, longest);
        const auto end = word.indexOf(u'>');
        if (end > 0 && isMisspelled(word.mid(1, end - 1))) {
            problems.warning(mFile.getName(),
                             QStringLiteral("\"%1\" looks like a part of a tag, but is written to %2 as it is")
                                 .arg(word.left(end + 1).toString(), mInput.file),
                             QStringLiteral("If it belongs to a tag, write <entry> or </entry>"), placeOf(position));
            return;
        }
    }
}

void FTagProblems::findForeignBytes(FProblemList& problems) {
    const int position = mText.indexOf(QChar::ReplacementCharacter);
    if (position >= 0) {
        problems.warning(mFile.getName(),
                         QStringLiteral("the sample has bytes that aren't UTF-8; %1 gets \"\uFFFD\" instead of them")
                             .arg(mInput.file),
                         QStringLiteral("Save the sample as UTF-8 and read it again"), placeOf(position));
    }
}

// The file is written up to it.
void FTagProblems::findNul(FProblemList& problems) {
    const int position = mText.indexOf(QChar::Null);
    if (position >= 0) {
        const bool isWide = mText.indexOf(QChar::Null, position + 1) == position + 2;
        problems.error(mFile.getName(),
                       QStringLiteral("the sample has a NUL character; it and all text after it are missing in %1")
                           .arg(mInput.file),
                       isWide ? QStringLiteral("The sample looks like UTF-16: save it as UTF-8, and read it again")
                              : QStringLiteral("Remove it from the sample; only text files can be input templates"),
                       placeOf(position));
    }
}

QString FTagProblems::placeOf(qsizetype position) {
    const FTextPlace place = mPlaces.at(position);
    return QStringLiteral("%1:%2:%3").arg(mFile.getName(), QString::number(place.line), QString::number(place.column));
}

/** The first character after a tag that isn't blank. */
qsizetype FTagProblems::fieldAfter(const FTemplateTag& tag) const {
    qsizetype after = tag.end();
    while (after < mText.size() && isBlank(mText[int(after)])) {
        ++after;
    }
    return after;
}

bool FTagProblems::hasTextAfter(const FTemplateTag& tag) const {
    const qsizetype after = fieldAfter(tag);
    return after < mText.size() && mText[int(after)] != u'\n' && mText[int(after)] != u'\r';
}

// A longer value moves what follows it, which matters where the program reads fixed columns. Commas, signs of
// assignment, tabs, and a single blank between fields show that it doesn't.
bool FTagProblems::isColumn(const FTemplateTag& tag) const {
    const qsizetype after = fieldAfter(tag);
    qsizetype before = tag.position - 1;
    while (before >= mEnd && isBlank(mText[int(before)])) {
        --before;
    }
    const QChar next = after < mText.size() ? mText[int(after)] : QChar(u'\n');
    const QChar last = before >= mEnd ? mText[int(before)] : QChar(u'\n');
    const bool startsTag = QStringView(mText).mid(after).startsWith(FTemplateTags::openingMarker, Qt::CaseInsensitive);
    const bool touches = after == tag.end() && !next.isDigit() && !startsTag && !isLongWord(mText, after);
    const bool isSeparated = after == tag.end() + 1 || (after > tag.end() && mText[int(tag.end())] == u'\t');
    return startsField(next) && !touches && !isSeparated && last != u'=' && last != u':' && last != u',';
}
