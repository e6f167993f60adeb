#pragma once

#include "genericintegration/editors/FTemplateFormats.h"
#include "genericintegration/marking/FKnownNames.h"
#include "genericintegration/marking/FTemplateLine.h"
#include "host/core/FQueuedCall.h"
#include "host/gui/text/FCmdLineSyntaxHighlighter.h"

#include <QRegExp>
#include <QTimer>

class FGenIntCommandFileEdit;
class FGenIntCommandFileEntryData;
class QTextBlock;

/**
 * Colours an input template, and keeps with each block what it offers. Of a large text, it colours only the blocks in
 * view and some around them; the others are analysed when their data is requested.
 */
class FGenIntCommandFileSyntaxHighlighter : public FCmdLineSyntaxHighlighter {
    Q_OBJECT

 public:
    /** Characters up to which a text is coloured as a whole. */
    static constexpr int mostAsWhole = 2'000'000;

    explicit FGenIntCommandFileSyntaxHighlighter(FGenIntCommandFileEdit& edit);
    ~FGenIntCommandFileSyntaxHighlighter() override;

    /** Called before the text becomes one of about that length; saves the time to go through all that is added. */
    void prepareFor(int length) { colourAsWhole(length <= mostAsWhole); }
    /** Colours everything again: what is in view at once, the rest in slices. Takes on colours, names and the mode. */
    void recolour();
    /** Takes on the present colours at once, and colours everything again a moment later. */
    void takeColours();
    /** Takes on the names of the definition; does nothing if they are the same. */
    void followDefinition();
    /** Marks what a search finds; an empty expression for nothing. */
    void setSearch(const QRegExp& search);
    /** Colours the blocks in view that aren't yet. */
    void colourShown();
    /** What a block offers; null if nothing. Valid until the next pass over the block. */
    FGenIntCommandFileEntryData* dataOf(QTextBlock block);

 signals:
    /** The data of some blocks has been replaced. */
    void passed();

 protected:
    void highlightBlock(const QString& text) override;

 private:
    void followSize();
    void colourAsWhole(bool isWhole);
    FTemplateLine analyse(const QString& text) const;
    bool takeNames();
    void textChanged(int position, int removed, int added);
    void colour(QTextBlock block);
    void rehighlightQuietly(const QTextBlock& block);
    void colour(int firstBlock, int lastBlock);
    void colourSlice();

    FGenIntCommandFileEdit& mEdit;
    QRegExp mSearchRegExp;
    FKnownNames mNames;
    bool mHasDefinition = false;
    FTemplateFormats mFormats;
    bool mIsWhole = false;
    FQueuedCall mFollowSize{[this] { followSize(); }};
    FQueuedCall mRecolour{[this] { recolour(); }};
    int mPass = 0;  //!< what is in the state of blocks that have been coloured since; only in a large text
    int mNext = 0;  //!< block with which the next slice starts
    bool mIsColouring = false;
    QTimer mSlices;
};
