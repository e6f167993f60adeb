#pragma once

#include "genericintegration/marking/FPlaceProposal.h"
#include "genericintegration/templates/FGenIntResultsFile.h"

#include <QObject>

class FResultsFileSteps;
class FResultsPreview;
class FSamplePane;
class QMenu;

/** What the user does by pointing at the sample of a result template: has numbers read, and chooses anchors. */
class FSamplePointing : public QObject {
    Q_OBJECT

 public:
    /** @param preview  knows which numbers are read already */
    FSamplePointing(const FExpr<FGenIntResultsFile>& file, FResultsFileSteps& steps, FSamplePane& pane,
                    FResultsPreview& preview);

    /**
     * Has a value read the number at a position of the widget: one that does already is chosen, else a new one is
     * added. False if no number is there.
     */
    bool readNumberAt(int position);
    /** Adds what can be done at a position of the widget to its menu. */
    void fillMenu(QMenu& menu, int position);

 signals:
    /** A value has been added, and is the current one. */
    void valueAdded();
    /** The current value has another place. */
    void valueMoved();
    /** The user means the value of a row of the preview. */
    void rowChosen(int row);

 private:
    std::optional<FPlaceProposal> proposalAt(int shown) const;
    int rowReading(FTextRange number) const;
    void moveValue(const FValueDescription& place, const QString& label);
    void setAnchor(FTextRange selection);

    const FExpr<FGenIntResultsFile>& mFile;
    FResultsFileSteps& mSteps;
    FSamplePane& mPane;
    FResultsPreview& mPreview;
};
