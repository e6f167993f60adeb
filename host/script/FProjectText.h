#pragma once

#include "host/core/FExport.h"

#include <QByteArray>
#include <QString>

/**
 * The text of a project: a header line that holds the version of the format, then a declaration for each object, in an
 * order in which a name precedes its use. docs/formats/project.md describes the format.
 */
class MERIX_EXPORT FProjectText {
 public:
    static constexpr int version = 1;
    /** Largest file, in bytes, that is read. */
    static constexpr qint64 largestFile = qint64{512} << 20U;

    /**
     * All objects of the model that belong to the project. The same model gives the same bytes.
     * @param fault  gets what keeps the text from being read again; empty if nothing does
     */
    static QByteArray write(QString* fault = nullptr);

    /**
     * Reads a file without touching the model. False, with a message, if it can't be read, is too large, is no project,
     * or was written in a newer format.
     */
    bool load(const QString& path);
    /** Makes the objects that the loaded text declares; returns how many errors were reported. Nothing is run. */
    int restore() const;
    /** True while the objects of a project are made. */
    static bool isBeingRestored();

    /** The text of unsaved work on a project whose file holds content that couldn't be read. */
    static QByteArray withNoteOfDamage(const QByteArray& text);
    /** Whether the loaded text has that note. */
    bool hasNoteOfDamage() const;

 private:
    bool checkHeader();

    QString mPath;
    QString mText;
    int mWarnings = 0;
};
