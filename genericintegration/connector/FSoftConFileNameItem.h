#pragma once

#include "genericintegration/connector/FSoftConEntryItem.h"
#include "host/design/FInputFile.h"

/** A file that is copied before a run. A double click makes it a template. */
class FSoftConFileNameItem : public FClass<FSoftConFileNameItem, FSoftConEntryItem> {
 public:
    static FClassData mClass;

    FSoftConFileNameItem() = default;
    using FClass::FClass;

    virtual bool isReference() const { return mIsReference; }
    /** Whether the file is a result of another computation. */
    virtual void setIsReference(bool isReference) { mIsReference = isReference; }

    void createObject(const QString& path, const QString& relativePath) override;
    QString getDisplayName(const FExpr<FEntry>& entry, bool resolved) const override;
    QString getToolTip() const override;
    void updateItem() override;
    bool open() override;

 protected:
    FInputFile* file() const;
    /** What the item shows of the file's name. */
    QString shownText() const;

 private:
    /** Asks whether a file that comes from an expression may become a template. */
    static bool mayReplace(const FExprBase& fileName);
    /** The same for a large file. */
    static bool mayLoad(const QString& path);

    bool mIsReference = false;
};
