#include "host/lodm/FLodmDefinitionParser.h"

#include "host/core/FDocuArea.h"
#include "host/core/FLogMsg.h"
#include "host/core/FObjectManager.h"
#include "host/core/FTextDecoder.h"
#include "host/core/FUserStep.h"
#include "host/lodm/FLodmEntryReader.h"
#include "host/lodm/FLodmEntryWriter.h"
#include "host/lodm/FLodmSlowTag.h"
#include "host/lodm/FLodmXmlReader.h"
#include "host/script/FCmdManager.h"
#include "host/script/FCmdTable.h"

#include <QFileDevice>

#include <algorithm>

const QString FLodmDefinitionParser::smObjectArea = QStringLiteral("<<<object area>>>");
const char* const FLodmDefinitionParser::xmlHeader = "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>";

namespace {

using lodm::word;
using Nodes = std::vector<FLodmEntry>;

/** Used in messages instead of a file's name. */
QString noFile() {
    return QStringLiteral("definition");
}

/** Limits the bytes to read so that a file that is too long is noticed but not loaded. */
qint64 mostToRead(const QIODevice& device) {
    constexpr qint64 leastBlock = qint64{1} << 20U;
    const qint64 most = FLodmDefinitionParser::longestFile + 1;
    return device.isSequential() ? most : std::clamp(device.bytesAvailable() + 1, leastBlock, most);
}

FPlace placeOf(const QString& text, int offset, int firstLine) {
    const QStringRef before = text.leftRef(offset);
    return {before.count(QLatin1Char('\n')) + firstLine, offset - before.lastIndexOf(QLatin1Char('\n'))};
}

}  // namespace

bool FLodmDefinitionParser::read(QIODevice* device) {
    const auto* file = dynamic_cast<QFileDevice*>(device);
    mSource = file ? file->fileName() : noFile();
    if (!device || !device->isReadable()) {
        error({}, QStringLiteral("it isn't open for reading"));
        return false;
    }
    // Line ends in quoted texts of the object area belong to the texts.
    const bool isText = device->isTextModeEnabled();
    device->setTextModeEnabled(false);
    const QByteArray bytes = device->read(mostToRead(*device));
    device->setTextModeEnabled(isText);
    if (bytes.size() > longestFile) {
        error({}, QStringLiteral("it is longer than %1 MiB").arg(longestFile >> 20U));
        return false;
    }
    const int badLine = FTextDecoder::firstInvalidLine(bytes);
    if (badLine > 0) {
        error({badLine, 1}, QStringLiteral("the line isn't UTF-8"));
        return false;
    }
    return readText(FTextDecoder::decode(bytes));
}

bool FLodmDefinitionParser::read(const QString& text) {
    return read(text, noFile(), 1);
}

bool FLodmDefinitionParser::read(const QString& text, const QString& source, int firstLine) {
    mSource = source;
    mFirstLine = firstLine;
    return readText(text);
}

bool FLodmDefinitionParser::readText(const QString& text) {
    const int marker = text.indexOf(smObjectArea);
    mNodes.clear();
    if (!parse(marker < 0 ? text : text.left(marker), mNodes)) {
        return false;
    }
    const FUserStep step(QStringLiteral("read definition"));
    if (!makeDefinition()) {
        return false;
    }
    FDefinitionCustom& definition = *mDefinition.ptr();
    takeDocu();
    mBuilder = FLodmEntryBuilder(mSource);
    definition.replaceEntries(buildNodes(mNodes));
    mHasAllDefaults = !mBuilder.isWaiting();
    mObjectAreaLine = placeOf(text, std::max(marker, 0), mFirstLine).line;
    importObjectsFromString(marker < 0 ? QString() : text.mid(marker + smObjectArea.size()));
    if (!mHasAllDefaults) {
        mBuilder.setNames(mNames);
        definition.replaceEntries(buildNodes(mNodes));
    }
    mBuilder.reportRest();
    return true;
}

// Names that are still missing may be those of objects that use the definition.
void FLodmDefinitionParser::takeDefaultsOfObjects() {
    if (mHasAllDefaults) {
        return;
    }
    FLodmEntryBuilder builder = mBuilder;
    builder.setNames(mNames, false);
    mDefinition->replaceEntries(builder.build(mNodes));
    mHasAllDefaults = builder.getFaultCount() == mBuilder.getFaultCount();
}

// Parses everything before the model is changed.
bool FLodmDefinitionParser::parse(const QString& text, Nodes& nodes) {
    if (const auto slow = FLodmSlowTag::find(text)) {
        error(placeOf(text, slow->place, mFirstLine), slow->reason);
        return false;
    }
    FLodmXmlReader xml(text, mFirstLine);
    readStructure(xml, nodes);
    if (xml.hasError()) {
        error(xml.place(), xml.errorString());
    }
    return !xml.hasError();
}

void FLodmDefinitionParser::readStructure(FLodmXmlReader& xml, Nodes& nodes) {
    if (!xml.nextRoot()) {
        return;
    }
    readRoot(xml, nodes);
    while (!xml.atEnd()) {
        xml.readNext();
    }
}

void FLodmDefinitionParser::readRoot(FLodmXmlReader& xml, Nodes& nodes) {
    if (!xml.isElement(lodm::definitionElement)) {
        xml.raise(QStringLiteral("expected <%1>, found %2; is this the file of a definition?")
                      .arg(word(lodm::definitionElement), xml.tag()));
        return;
    }
    checkAttr(xml, {word(lodm::versionAttr), word(lodm::nameAttr)});
    const int version = xml.wholeAttribute(lodm::versionAttr);
    if (version < 1 || version > lodm::formatVersion) {
        xml.raise(QStringLiteral("the file has version %1 of the format, and this program reads version %2; a "
                                 "newer release of the program may read it")
                      .arg(version)
                      .arg(lodm::formatVersion));
        return;
    }
    mName = getAttr(xml, lodm::nameAttr);
    mNamePlace = xml.place();
    FLodmEntryReader entries(xml);
    while (xml.nextChild()) {
        xml.isElement(lodm::docuElement) ? readDocu(xml) : entries.read(nodes);
    }
    entries.checkNames(nodes);
}

void FLodmDefinitionParser::takeDocu() {
    for (auto area = mDocu.begin(); area != mDocu.end(); ++area) {
        if (!mDefinition->getDocu().contains(area.key())) {
            mDefinition->addDocu(area.value(), area.key());
        }
    }
}

void FLodmDefinitionParser::readDocu(FLodmXmlReader& xml) {
    checkAttr(xml, {word(lodm::areaAttr)});
    const QString name = getAttr(xml, lodm::areaAttr);
    FEnum<FDocuArea> area;
    if (!area.setValue(name)) {
        xml.raise(QStringLiteral("expected one of %1 as \"%2\" of %3, found \"%4\"")
                      .arg(area.getStringValues().join(QStringLiteral(", ")), word(lodm::areaAttr), xml.tag(), name));
    } else if (mDocu.contains(area.getValue())) {
        xml.raise(QStringLiteral("there are two texts of %1; remove one").arg(name));
    } else {
        mDocu.insert(area.getValue(), xml.plainText());
    }
}

void FLodmDefinitionParser::error(const FPlace& place, const QString& message) {
    mDefinition = {};
    ++mFaultCount;
    FLogMsg::error(place.toString(mSource), QStringLiteral("the definition can't be read: ") + message,
                   QStringLiteral("Nothing was read; correct the file, or save the definition again"));
}

// Objects are created by the creator command of their class, as in a script.
bool FLodmDefinitionParser::makeDefinition() {
    const FDefinitionCustom* given = mDefinition.ptr();
    if (given && given != given->getPrototype()) {
        return true;
    }
    const FCmdRow* creator = given ? FCmdManager::instance()->creatorOf(given->getClassData()) : nullptr;
    if (!creator || !creator->arguments.empty()) {
        error({}, QStringLiteral("definitions of the class %1 can't be made")
                      .arg(given ? given->getClass() : QStringLiteral("NULL")));
        return false;
    }
    mDefinition = creator->call(nullptr, {FNewName{mName, FObjectManager::instance()->getWorkingScope()}});
    if (mDefinition && !mName.isEmpty() && mDefinition->getName() != mName) {
        const bool isTaken = FObjectManager::instance()->find(mName);
        FLogMsg::warning(
            mNamePlace.toString(mSource),
            QStringLiteral("the name \"%1\" %2; the new definition is \"%3\"")
                .arg(mName, isTaken ? QStringLiteral("is taken") : QStringLiteral("isn't one of an object"),
                     mDefinition->getName()));
    }
    return static_cast<bool>(mDefinition);
}

bool FLodmDefinitionParser::write(QIODevice* device, const FDefinitionCustom* definition) {
    const QByteArray header(xmlHeader);
    return device && definition && device->write(header) == header.size() &&
           FLodmEntryWriter(device).write(*definition);
}
