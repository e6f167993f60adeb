#pragma once

#include "host/core/FExport.h"
#include "host/lodm/FDefinitionCustom.h"
#include "host/lodm/FLodmEntryBuilder.h"
#include "host/lodm/FLodmXmlReader.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <vector>

class QIODevice;

/**
 * Reads and writes definitions as exchange files (docs/formats/lodm.md): XML with the entry definitions, then a marker,
 * then the object area, script text that only the plug-in's own parser understands.
 *
 * One parser reads or writes one file.
 */
class MERIX_EXPORT FLodmDefinitionParser {
 public:
    /** The marker. Well-formed XML contains it only in comments, so no text of an entry is mistaken for it. */
    static const QString smObjectArea;
    /** The first line of a file. */
    static const char* const xmlHeader;
    /** Bytes of the longest file that is read. */
    static constexpr qint64 longestFile = qint64{512} << 20U;

    /**
     * @param definition  a definition to read into: its entries are replaced, its documentation stays; or the prototype
     *                    of the class of which to create a definition. May be empty for writing.
     */
    explicit FLodmDefinitionParser(const FExpr<FDefinitionCustom>& definition = {}) : mDefinition(definition) {}
    virtual ~FLodmDefinitionParser() = default;
    FLodmDefinitionParser(const FLodmDefinitionParser&) = default;
    FLodmDefinitionParser& operator=(const FLodmDefinitionParser&) = default;

    /**
     * Reads a definition, in one step of the history. If the XML half has any error, returns false with a message that
     * gives the place; then no definition is created or changed, and `getDefinition` is empty. Errors in the object
     * area, and default values with unknown names, are reported and skipped.
     *
     * Runs nothing, and reads no other file. Takes time linear in the length, except for names of objects.
     */
    bool read(QIODevice* device);
    bool read(const QString& text);
    /** Reads a part of a file, whose messages give the name and the lines of the file. */
    bool read(const QString& text, const QString& source, int firstLine);
    /** Sets what names mean that the text doesn't declare. Those that it declares join them. */
    void setNames(FScriptNames names) { mNames = std::move(names); }
    FScriptNames takeNames() { return std::move(mNames); }
    /** How many errors were reported; what they concern wasn't read. */
    int getFaultCount() const { return mFaultCount + mBuilder.getFaultCount(); }
    /** Writes the XML half to an open device; false if not everything could be written. */
    bool write(QIODevice* device, const FDefinitionCustom* definition);

    /** The definition that was read; before reading, the one to read into. */
    const FExpr<FDefinitionCustom>& getDefinition() const { return mDefinition; }

 protected:
    /** Creates the objects of the object area, and sets `mNames` to the meaning of the names in it. */
    virtual void importObjectsFromString(const QString& text) { Q_UNUSED(text) }
    /**
     * Gives the entries the defaults that name objects of the object area which `mNames` knows. Called before objects
     * are made that use the definition, since a configuration takes over what is the default then.
     */
    void takeDefaultsOfObjects();

    /** Parses the XML. Errors are raised on the reader. */
    void readStructure(FLodmXmlReader& xml, std::vector<FLodmEntry>& nodes);
    /** Makes entry definitions, not yet part of a definition, from the parsed XML. */
    QList<FExpr<FEntryBase>> buildNodes(const std::vector<FLodmEntry>& nodes) { return mBuilder.build(nodes); }
    /** See FLodmXmlReader::attribute and checkAttributes. */
    static QString getAttr(const FLodmXmlReader& xml, const char* name, const QString& byDefault = QString()) {
        return xml.attribute(name, byDefault);
    }
    static void checkAttr(FLodmXmlReader& xml, const QStringList& known) { xml.checkAttributes(known); }
    /** Reports that the file can't be read, and why. */
    void error(const FPlace& place, const QString& message);

    FExpr<FDefinitionCustom> mDefinition;
    QString mSource;  //!< name of the file in messages
    QString mName;    //!< the definition's name in the file
    FPlace mNamePlace;
    FScriptNames mNames;      //!< meaning of the names in default values
    int mObjectAreaLine = 1;  //!< the line of the file where the object area begins
    int mFaultCount = 0;      //!< apart from defaults

 private:
    bool readText(const QString& text);
    bool parse(const QString& text, std::vector<FLodmEntry>& nodes);
    void readRoot(FLodmXmlReader& xml, std::vector<FLodmEntry>& nodes);
    void takeDocu();
    void readDocu(FLodmXmlReader& xml);
    bool makeDefinition();

    int mFirstLine = 1;  //!< the line of the file where the text begins
    std::vector<FLodmEntry> mNodes;
    QMap<unsigned int, QString> mDocu;  //!< of the definition, by area
    FLodmEntryBuilder mBuilder;
    bool mHasAllDefaults = false;
};
