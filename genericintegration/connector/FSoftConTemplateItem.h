#pragma once

#include "genericintegration/connector/FSoftConObjectItem.h"
#include "genericintegration/templates/FGenIntFile.h"

/** A template, shown as a page with the beginning of its text. */
class FSoftConTemplateItem : public FClass<FSoftConTemplateItem, FSoftConObjectItem> {
 public:
    static FClassData mClass;

    FSoftConTemplateItem() = default;
    FSoftConTemplateItem(FItemScene* scene, QGraphicsItem* parent, const FExpr<FObject>& object, SoftConArea area,
                         const QString& image);
    ~FSoftConTemplateItem() override;

    /** The next `updateItem` paints the page again. */
    virtual void setPreviewOutOfDate() { mPreviewOutOfDate = true; }
    void setOutOfDate(bool outOfDate) const override;

    QString getToolTip() const override;
    bool getPreviewText(QString& text) override;
    void removeObject() override;
    void updateItem() override;
    void release() override;
    void updateLook() override;

 protected:
    void refresh() override;
    /** Null while the item stands for no template. */
    FGenIntFile* file() const;
    /** Names a template after a file that isn't there, from which it took nothing, and reports that. */
    static void nameMissing(FGenIntFile& file, const QString& path);
    /** Takes the template as the item's object, adds it to the definition, and opens its tab. */
    void takeFile(FGenIntFile* file);

    mutable bool mPreviewOutOfDate = true;

 private:
    void paintPreview(const QString& text, const QSize& size);
    /** Whoever shows the template next must read its text. */
    void leaveFile();

    // What the picture shows; the size is null for a picture that is no preview.
    QString mPaintedText;
    QSize mPaintedSize;
};
