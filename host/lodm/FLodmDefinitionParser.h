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
 * then the object area, script text of which only the plug-in's own parser knows what to do with it.
 *
 * A parser lives for one file.
 */
class MERIX_EXPORT FLodmDefinitionParser {
 public:
    /** The marker. No well-formed XML holds it outside of a comment, so that no text of an entry is taken for it. */
    static const QString smObjectArea;
    /** Bytes of the longest file that is read. */
    static constexpr qint64 longestFile = qint64{512} << 20U;

    /**
     * @param definition  what to read into: a definition, whose entries are replaced, while documentation that it has
     *                    stays; or the prototype of a class of definitions, of which one is made. May be empty for
     *                    writing.
     */
    explicit FLodmDefinitionParser(const FExpr<FDefinitionCustom>& definition = {}) : mDefinition(definition) {}
    virtual ~FLodmDefinitionParser() = default;
    FLodmDefinitionParser(const FLodmDefinitionParser&) = default;
    FLodmDefinitionParser& operator=(const FLodmDefinitionParser&) = default;

    /**
     * Reads a definition, in one step of the history. False, with a message that tells the place, if the XML half is
     * wrong in any way: then no definition is made, none is changed, and `getDefinition` is empty. Errors of the object
     * area, and default values that name what isn't there, are reported and passed over.
     *
     * Nothing of a file is run, and no other file is read for it. Time linear in its length, but for names of objects.
     */
    bool read(QIODevice* device);
    bool read(const QString& text);
    /** Writes the XML half to an open device; false if that didn't take all. */
    bool write(QIODevice* device, const FDefinitionCustom* definition);

    /** What was read; before that, what to read into. */
    const FExpr<FDefinitionCustom>& getDefinition() const { return mDefinition; }

 protected:
    /** Makes the objects of the object area, and leaves in `mNames` what names mean in it. */
    virtual void importObjectsFromString(const QString& text) { Q_UNUSED(text) }

    /** Takes the XML apart. Faults are raised on the reader. */
    void readStructure(FLodmXmlReader& xml, std::vector<FLodmEntry>& nodes);
    /** The entry definitions of what was taken apart, which stand nowhere yet. */
    QList<FExpr<FEntryBase>> buildNodes(const std::vector<FLodmEntry>& nodes) { return mBuilder.build(nodes); }
    /** See FLodmXmlReader::attribute and checkAttributes. */
    static QString getAttr(const FLodmXmlReader& xml, const char* name, const QString& byDefault = QString()) {
        return xml.attribute(name, byDefault);
    }
    static void checkAttr(FLodmXmlReader& xml, const QStringList& known) { xml.checkAttributes(known); }
    /** Reports that the file can't be read, and why. */
    void error(const FPlace& place, const QString& message);

    FExpr<FDefinitionCustom> mDefinition;
    QString mSource;           //!< the name that messages give the file
    QString mName;             //!< the definition's name in the file
    FScriptNames mNames;       //!< what names in default values mean
    int mObjectAreaLines = 0;  //!< lines of the file before the object area

 private:
    bool readText(const QString& text);
    bool parse(const QString& text, std::vector<FLodmEntry>& nodes);
    void readRoot(FLodmXmlReader& xml, std::vector<FLodmEntry>& nodes);
    void takeDocu();
    void readDocu(FLodmXmlReader& xml);
    bool makeDefinition();

    QMap<unsigned int, QString> mDocu;  //!< of the definition, by area
    FLodmEntryBuilder mBuilder;
};
