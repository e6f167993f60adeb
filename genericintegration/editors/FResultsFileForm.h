#pragma once

#include <QFrame>

class FAttributeEditor;
class FFileNameGroup;
class FPreviewGroup;
class FSeparatorGroup;
class FValueGroup;
class FValueSelector;
class QScrollArea;

/**
 * The form of a result template. Its groups show what the template holds and say what the user enters; that is the
 * business of their editor. The rows scroll if there isn't room for all of them; what is found in the sample stays in
 * view.
 */
class FResultsFileForm : public QFrame {
    Q_OBJECT

 public:
    /** @param averageRows  the field for the number of rows */
    explicit FResultsFileForm(FAttributeEditor* averageRows);

    FFileNameGroup& fileName() { return *mpFileName; }
    FSeparatorGroup& separators() { return *mpSeparators; }
    FValueGroup& values() { return *mpValues; }
    FValueSelector& selector();
    FPreviewGroup& preview() { return *mpPreview; }

    /** Completes what is being typed in any of them. */
    void commit();
    /** Scrolls to the field that has the focus, if it is in the form. */
    void showFocused();
    /** Measures the labels again, after a change of the font. */
    void refreshLabels();

    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void alignLabels();
    void fitRows();
    void showValues();

    FFileNameGroup* mpFileName;
    FSeparatorGroup* mpSeparators;
    FValueGroup* mpValues;
    FPreviewGroup* mpPreview;
    QWidget* mpRows;
    QScrollArea* mpArea;
    bool mHasScrolled = false;  //!< the user has chosen what is in view
};
