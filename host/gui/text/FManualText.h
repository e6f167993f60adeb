#pragma once

#include "host/core/FExport.h"
#include "host/core/FQueuedCall.h"

#include <QTextBrowser>

/**
 * Shows pages of the documentation, Markdown files with pictures and links. Wide pictures are shown in the width of the
 * text. A link to a heading is the heading in lower case, with hyphens for blanks, as in repositories.
 */
class MERIX_EXPORT FManualText : public QTextBrowser {
    Q_OBJECT

 public:
    explicit FManualText(QWidget* parent = nullptr);

    /** Shows the page of a link, as a click on it does. */
    void follow(const QUrl& link);

 protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void resizeEvent(QResizeEvent* event) override;

 private:
    int pictureWidth() const;
    void goToHeading(const QString& anchor);
    void styleTables();
    void styleCode();
    void fitPictures();

    int mPictureWidth = 0;  //!< of the pictures that are shown
    // A page may be in the middle of being read when the width changes.
    FQueuedCall mFit{[this] { fitPictures(); }};
};
