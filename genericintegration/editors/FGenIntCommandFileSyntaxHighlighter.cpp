#include "genericintegration/editors/FGenIntCommandFileSyntaxHighlighter.h"

#include "genericintegration/editors/FGenIntCommandFileEdit.h"
#include "genericintegration/editors/FGenIntCommandFileEntryData.h"
#include "genericintegration/editors/FTemplateColors.h"
#include "genericintegration/setup/FDefinitionGenInt.h"

#include <QElapsedTimer>
#include <QScopedValueRollback>
#include <QTextDocument>

#include <memory>

namespace {

/** Blocks before and after those in view. */
constexpr int margin = 200;
constexpr int sliceTime = 10;  // milliseconds
/** Characters of a change above which its blocks are coloured when they come into view. */
constexpr int mostAtOnce = 100'000;

std::unique_ptr<FGenIntCommandFileEntryData> dataFrom(const FTemplateLine& line) {
    return line.regions().isEmpty() ? nullptr : std::make_unique<FGenIntCommandFileEntryData>(line.regions());
}

}  // namespace

FGenIntCommandFileSyntaxHighlighter::FGenIntCommandFileSyntaxHighlighter(FGenIntCommandFileEdit& edit)
    : FCmdLineSyntaxHighlighter(static_cast<QObject*>(&edit)), mEdit(edit) {
    mSlices.setInterval(0);
    connect(&mSlices, &QTimer::timeout, this, &FGenIntCommandFileSyntaxHighlighter::colourSlice);
    // Before the base, and not as a slot of this object, so that the base alone can be disconnected.
    connect(edit.document(), &QTextDocument::contentsChange, &mSlices,
            [this](int position, int removed, int added) { textChanged(position, removed, added); });
    connect(&edit, &QPlainTextEdit::updateRequest, this, &FGenIntCommandFileSyntaxHighlighter::colourShown);
    connect(&FTemplateColors::instance(), &FTemplateColors::changed, this,
            &FGenIntCommandFileSyntaxHighlighter::takeColours);
    takeNames();
    followSize();
}

// The base changes the document once more when it lets go of it.
FGenIntCommandFileSyntaxHighlighter::~FGenIntCommandFileSyntaxHighlighter() {
    mEdit.document()->disconnect(this);
    mEdit.disconnect(this);
}

void FGenIntCommandFileSyntaxHighlighter::followSize() {
    prepareFor(mEdit.document()->characterCount());
}

// A document reports new formats as a change of the text.
void FGenIntCommandFileSyntaxHighlighter::rehighlightQuietly(const QTextBlock& block) {
    const QSignalBlocker blocker(&mEdit);
    rehighlightBlock(block);
}

void FGenIntCommandFileSyntaxHighlighter::colourAsWhole(bool isWhole) {
    QTextDocument* wanted = isWhole ? mEdit.document() : nullptr;
    if (isWhole == mIsWhole && wanted == document()) {
        return;
    }
    ++mPass;
    mIsWhole = isWhole;
    const QSignalBlocker blocker(&mEdit);
    setDocument(wanted);
    if (isWhole) {
        rehighlight();
    } else {
        colourShown();
    }
}

void FGenIntCommandFileSyntaxHighlighter::recolour() {
    takeNames();
    mFormats = FTemplateFormats();
    ++mPass;
    mNext = 0;
    colourShown();
    if (mIsWhole) {
        const auto [first, last] = mEdit.shownRange();
        colour(first - margin, last + margin);
        mSlices.start();
        colourSlice();
    }
}

void FGenIntCommandFileSyntaxHighlighter::takeColours() {
    mFormats = FTemplateFormats();
    mRecolour.request();
}

bool FGenIntCommandFileSyntaxHighlighter::takeNames() {
    const FDefinitionGenInt* definition = mEdit.getDefinition();
    const bool hadDefinition = std::exchange(mHasDefinition, definition != nullptr);
    const bool hasNewNames = definition && mNames.update(*definition);
    return hasNewNames || hadDefinition != mHasDefinition;
}

void FGenIntCommandFileSyntaxHighlighter::followDefinition() {
    if (takeNames()) {
        recolour();
    }
}

void FGenIntCommandFileSyntaxHighlighter::setSearch(const QRegExp& search) {
    mSearchRegExp = search;
    recolour();
}

FTemplateLine FGenIntCommandFileSyntaxHighlighter::analyse(const QString& text) const {
    const auto mode = mEdit.isAssisted() ? FTemplateLine::Mode::Assisted : FTemplateLine::Mode::Plain;
    return {text, mNames.get(), mode, mSearchRegExp};
}

void FGenIntCommandFileSyntaxHighlighter::highlightBlock(const QString& text) {
    if (text.isEmpty() || !mHasDefinition) {
        setCurrentBlockUserData(nullptr);
        return;
    }
    const FTemplateLine line = analyse(text);
    for (const QTextLayout::FormatRange& range : mFormats.of(line.spans(), text.size())) {
        setFormat(range.start, range.length, range.format);
    }
    if (mEdit.isAssisted()) {
        setCurrentBlockUserData(dataFrom(line).release());
        emit passed();
    }
}

// ---- large texts ----

void FGenIntCommandFileSyntaxHighlighter::textChanged(int position, int removed, int added) {
    Q_UNUSED(removed)
    const bool isSmall = mEdit.document()->characterCount() <= mostAsWhole;
    if (isSmall != mIsWhole) {
        mFollowSize.request();
    }
    if (mIsWhole && isSmall) {
        return;
    }
    if (mIsWhole) {
        // The base would go through all that was added. It can't let go of the document during a change.
        disconnect(mEdit.document(), &QTextDocument::contentsChange, this, nullptr);
        mIsWhole = false;
        ++mPass;
    }
    if (added > mostAtOnce) {
        ++mPass;
        return;
    }
    const QTextDocument* text = mEdit.document();
    QTextBlock block = text->findBlock(position);
    const int first = block.blockNumber();
    const int last = std::max(first, text->findBlock(position + added).blockNumber());
    for (int number = first; number <= last && block.isValid(); ++number, block = block.next()) {
        block.setUserState(-1);
        block.setUserData(nullptr);
    }
    colour(first, last);
}

// A colour that changes asks for an update, which comes here again.
void FGenIntCommandFileSyntaxHighlighter::colourShown() {
    if (!mIsWhole && !mIsColouring) {
        const QScopedValueRollback<bool> guard(mIsColouring, true);
        const auto [first, last] = mEdit.shownRange();
        colour(first - margin, last + margin);
    }
}

void FGenIntCommandFileSyntaxHighlighter::colour(int firstBlock, int lastBlock) {
    QTextBlock block = mEdit.document()->findBlockByNumber(std::max(firstBlock, 0));
    for (; block.isValid() && block.blockNumber() <= lastBlock; block = block.next()) {
        if (mIsWhole) {
            rehighlightQuietly(block);
        } else if (block.userState() != mPass) {
            colour(block);
        }
    }
}

void FGenIntCommandFileSyntaxHighlighter::colour(QTextBlock block) {
    block.setUserState(mPass);
    const bool isColoured = mHasDefinition && block.length() > 1;
    const FTemplateLine line = analyse(isColoured ? block.text() : QString());
    block.setUserData(dataFrom(line).release());
    const QVector<QTextLayout::FormatRange> formats = mFormats.of(line.spans(), block.length() - 1);
    if (formats != block.layout()->formats()) {
        block.layout()->setFormats(formats);
        mEdit.document()->markContentsDirty(block.position(), block.length());
    }
    emit passed();
}

FGenIntCommandFileEntryData* FGenIntCommandFileSyntaxHighlighter::dataOf(QTextBlock block) {
    if (!mIsWhole && block.userState() != mPass) {
        colour(block);
    }
    return static_cast<FGenIntCommandFileEntryData*>(block.userData());
}

void FGenIntCommandFileSyntaxHighlighter::colourSlice() {
    QElapsedTimer time;
    time.start();
    QTextBlock block = mEdit.document()->findBlockByNumber(mNext);
    for (; mIsWhole && block.isValid() && time.elapsed() < sliceTime; block = block.next()) {
        rehighlightQuietly(block);
        ++mNext;
    }
    if (!mIsWhole || !block.isValid()) {
        mSlices.stop();
    }
}
