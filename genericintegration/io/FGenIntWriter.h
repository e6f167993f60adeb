#pragma once

#include "host/core/FClass.h"
#include "host/core/FExpr.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>

class FConfiguration;
class FGenIntFile;
class FTemplateOwner;
class FValueTable;

/**
 * Writes the input templates of a definition with the values of one configuration in place of the tags. There is one
 * writer; it keeps nothing between calls but the fault.
 */
class FGenIntWriter : public FClass<FGenIntWriter, FObject> {
 public:
    static FClassData mClass;
    static FGenIntWriter* instance();

    /** Puts the text of each input file into the map, under its file name. Touches no file. */
    virtual bool previewCommandFiles(const FExpr<FConfiguration>& configuration, QMap<QString, QString>& texts);
    /**
     * Writes all input files. The directory ends in a separator. Returns false and logs the reason if there is no
     * definition or a file can't be written; files that have been written by then stay.
     */
    virtual bool exportCommandFiles(const FExpr<FConfiguration>& configuration, const QString& directory);
    /** Why the last `exportCommandFiles` couldn't write a file, with its path, without a full stop; else empty. */
    const QString& getFault() const { return mFault; }
    /** Appends the name of each tag of a template, repeats included. */
    virtual void getTagNames(const FExpr<FGenIntFile>& file, QStringList& names);

    using Output = std::function<void(QStringView piece)>;
    /** Writes one text. Drops a tag that names nothing, with a message that names the configuration. */
    void writeTemplate(const Output& output, const QString& text, const FValueTable& table,
                       const FExpr<FConfiguration>& configuration, bool forceWindowsLineEndings) const;

 private:
    FTemplateOwner* definitionOf(const FExpr<FConfiguration>& configuration) const;
    bool exportFile(const FGenIntFile& file, const QString& directory, const FValueTable& table,
                    const FExpr<FConfiguration>& configuration) const;
    QString previewText(const FGenIntFile& file, const FValueTable& table,
                        const FExpr<FConfiguration>& configuration) const;

    mutable QString mFault;
};
