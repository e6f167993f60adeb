#pragma once

#include "host/core/FManaged.h"

/**
 * A template: the text of a sample file of the external program, and the name under which the real file lies in the run
 * directory. Base of input templates and result templates.
 *
 * The content has two forms. The plain one is what everything works on. The stored one, "[B64]" and the Base64 (RFC
 * 4648, no line breaks) of its UTF-8 bytes, is what a project keeps, since it survives any text processing.
 */
class FGenIntFile : public FClass<FGenIntFile, FManaged> {
 public:
    static FClassData mClass;

    /** The stored form, built again at each call. */
    QString getContent() const;
    const QString& getPlainContent() const { return mContent; }
    /** Takes either form. Each call marks, flags and records, whether the text is new or not. Returns the object. */
    FGenIntFile* setContent(const QString& content);
    /** The same with the plain form, whatever it begins with. */
    void setPlainContent(const QString& content);
    /**
     * Takes the content of a sample file, and its name without folders for the file and the object. A file that can't
     * be opened changes nothing. One that isn't valid UTF-8 is taken with a warning that names the line.
     */
    void initFromFile(const QString& path);

    /** Name of the real file relative to the run directory; may hold sub-folders. */
    const QString& getFileName() const { return mFileName; }
    virtual FGenIntFile* setFileName(const QString& fileName);

    /** Whether the writer turns each LF of the template into CR LF. */
    virtual void setForceWindowsLineEndings(bool force);
    virtual bool getForceWindowsLineEndings() const { return mForceWindowsLineEndings; }

    /** Set by each `setContent`; editors clear it when they have shown the text. */
    void setContentAltered(bool altered) { mContentAltered = altered; }
    bool wasContentAltered() const { return mContentAltered; }
    /** While blocked, `setContent` and `setFileName` don't mark the object out of date. */
    void blockOutOfDateState(bool block) { mBlockOutOfDate = block; }

    /** Takes over all of the content, and what assignment of managed objects does. */
    FGenIntFile& operator=(const FGenIntFile& other);

 protected:
    explicit FGenIntFile(const QString& name = QString());
    FGenIntFile(const FGenIntFile& other) = default;

 private:
    friend class FClass<FGenIntFile, FManaged>;

    static std::vector<std::unique_ptr<FStateField>> fields();
    QString decode(const QString& stored) const;
    void markOutOfDate();

    QString mFileName;
    QString mContent;
    bool mContentAltered = true;
    bool mForceWindowsLineEndings = false;
    bool mBlockOutOfDate = false;
};
