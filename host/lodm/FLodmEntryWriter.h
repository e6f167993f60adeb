#pragma once

#include <QXmlStreamWriter>

class FDefinition;
class FEntryDef;
class FEntryHolder;

/** Writes the documentation and the entry definitions of a definition as the XML half of an exchange file. */
class FLodmEntryWriter {
 public:
    /** Writes to an open device. */
    explicit FLodmEntryWriter(QIODevice* device) : mXml(device) {}

    /** False if not everything could be written. */
    bool write(const FDefinition& definition);

 private:
    void writeDocu(const FDefinition& definition);
    void writeEntries(const FEntryHolder& holder);
    void writeEntry(const FEntryDef& entry);
    void writeFrame(const FEntryDef& entry);
    void writeDefault(const FEntryDef& entry);
    void attribute(const char* name, const QString& text);

    QXmlStreamWriter mXml;
};
