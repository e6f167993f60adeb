#pragma once

#include "genericintegration/setup/FProblemList.h"
#include "genericintegration/setup/FTagUses.h"
#include "genericintegration/templates/FTextPlaces.h"

#include <QSet>
#include <QStringList>

class FGenIntFile;
class FTemplateKeys;
struct FTemplateTag;

/**
 * Finds the problems of the tags of one input template, in time linear in the size of its text. What a tag names is
 * looked up as the writer does it.
 */
class FTagProblems {
 public:
    /**
     * @param keys   what tags can name; null if that isn't known, and then no tag is reported as unknown
     * @param names  the same as tags spell it, for suggestions
     */
    FTagProblems(const FGenIntFile& file, const FTemplateKeys* keys, const QStringList& names);

    /** Adds the problems, and what the tags name. */
    void find(FProblemList& problems, FTagUses& uses);
    /** How many tags get a value, known after `find`. */
    const FSetUpInput& getInput() const { return mInput; }

 private:
    void look(const FTemplateTag& tag, FProblemList& problems, FTagUses& uses);
    void findUnclosed(qsizetype position, FProblemList& problems);
    void findUnknown(const FTemplateTag& tag, const QString& place, FProblemList& problems);
    void findMisspelledMarker(FProblemList& problems);
    void findLoneClosing(qsizetype begin, qsizetype end, FProblemList& problems);
    void findForeignBytes(FProblemList& problems);
    void findNul(FProblemList& problems);
    /** Adds what to do about a tag that names nothing. */
    void addRemedy(const QString& name, FSetUpProblem& problem) const;
    QString placeOf(qsizetype position);
    qsizetype fieldAfter(const FTemplateTag& tag) const;
    bool hasTextAfter(const FTemplateTag& tag) const;
    bool isColumn(const FTemplateTag& tag) const;

    const FGenIntFile& mFile;
    const QString mText;
    const FTemplateKeys* mKeys;
    const QStringList& mNames;
    FTextPlaces mPlaces;
    FSetUpInput mInput;
    QSet<QString> mUnknown;
    bool mHasCapitals = false;
    bool mHasLoneClosing = false;
    qsizetype mEnd = 0;  // of the tag before
};
