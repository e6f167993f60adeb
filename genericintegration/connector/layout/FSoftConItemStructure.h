#pragma once

#include "host/core/FExpr.h"
#include "host/core/FObject.h"

/** A request for an item. */
struct FSoftConItemStructure {
    FSoftConItemStructure() = default;
    FSoftConItemStructure(FExpr<FObject> type, QString path, QString relativePath, qint64 size)
        : mType(std::move(type)), mPath(std::move(path)), mRelativePath(std::move(relativePath)), mSize(size) {}
    FSoftConItemStructure(const FSoftConItemStructure&) = default;
    FSoftConItemStructure& operator=(const FSoftConItemStructure&) = default;
    virtual ~FSoftConItemStructure() = default;

    FExpr<FObject> mType;   //!< an object, or a prototype for a new one; it selects the kind of item
    QString mPath;          //!< of the file
    QString mRelativePath;  //!< the base of the path, or the folder below it that the file is kept in
    qint64 mSize = 0;       //!< in bytes
};
