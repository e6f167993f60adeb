#include "host/lodm/FLodmDefinitionParser.h"

#include "host/core/FDocuArea.h"
#include "host/core/FHistory.h"
#include "host/core/FLogMsg.h"
#include "host/core/FObjectManager.h"
#include "host/core/FPrototypes.h"
#include "host/core/FTextDecoder.h"
#include "host/design/FEntryDef.h"
#include "host/design/FEntryName.h"
#include "host/design/FEntryTree.h"
#include "host/lodm/FLodmDefaultValue.h"
#include "host/lodm/FLodmEntryWriter.h"
#include "host/lodm/FLodmSlowTag.h"
#include "host/lodm/FLodmText.h"
#include "host/lodm/FLodmXmlReader.h"
#include "host/script/FCmdManager.h"
#include "host/script/FCmdTable.h"
#include "host/script/FScriptParser.h"

#include <QFileDevice>
#include <QSet>

#include <algorithm>
#include <iterator>

const QString FLodmDefinitionParser::smObjectArea = QStringLiteral("<<<object area>>>");

namespace {

using lodm::word;
using Nodes = std::vector<FLodmEntry>;

constexpr char xmlHeader[] = "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>";

/** What messages say instead of a file's name. */
QString noFile() {
    return QStringLiteral("definition");
}

/** As many bytes as it takes to see that a file is too long, without asking for the memory of such a one. */
qint64 mostToRead(const QIODevice& device) {
    constexpr qint64 leastBlock = qint64{1} << 20U;
    const qint64 most = FLodmDefinitionParser::longestFile + 1;
    return device.isSequential() ? most : std::clamp(device.bytesAvailable() + 1, leastBlock, most);
}

FPlace placeOf(const QString& text, int offset) {
    const QStringRef before = text.leftRef(offset);
    return {before.count(QLatin1Char('\n')) + 1, offset - before.lastIndexOf(QLatin1Char('\n'))};
}

int wholeNumber(FLodmXmlReader& xml, const char* attribute, const QString& text) {
    bool isWhole = false;
    const int number = text.toInt(&isWhole);
    if (!isWhole) {
        xml.raise(QStringLiteral("expected a whole number as \"%1\" of %2, found \"%3\"")
                      .arg(word(attribute), xml.tag(), text));
    }
    return number;
}

FLodmEntry::Default kindOfWord(const QString& text) {
    const auto found = std::find(std::begin(lodm::kindWords), std::end(lodm::kindWords), text);
    return found == std::end(lodm::kindWords)
               ? FLodmEntry::Default::None
               : static_cast<FLodmEntry::Default>(std::distance(std::begin(lodm::kindWords), found) + 1);
}

/** A name that two of the entries have; empty if there is none. */
QString doubleName(const Nodes& nodes) {
    QSet<QString> names;
    for (const FLodmEntry& node : nodes) {
        if (names.contains(node.name)) {
            return node.name;
        }
        names.insert(node.name);
    }
    return {};
}

/** Two entries of one holder can't have one name. */
void checkNames(FLodmXmlReader& xml, const Nodes& nodes) {
    const QString name = doubleName(nodes);
    if (!name.isEmpty()) {
        xml.raise(QStringLiteral("two entries in %1 have the name \"%2\"; rename one").arg(xml.tag(), name));
    }
}

}  // namespace

bool FLodmDefinitionParser::read(QIODevice* device) {
    const auto* file = dynamic_cast<QFileDevice*>(device);
    mSource = file ? file->fileName() : noFile();
    if (!device || !device->isReadable()) {
        error({}, QStringLiteral("it isn't open for reading"));
        return false;
    }
    // Line ends inside of quoted texts of the object area belong to those.
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
    mSource = noFile();
    return readText(text);
}

bool FLodmDefinitionParser::readText(const QString& text) {
    const int marker = text.indexOf(smObjectArea);
    Nodes nodes;
    if (!parse(marker < 0 ? text : text.left(marker), nodes)) {
        return false;
    }
    const FHistoryTransaction transaction(QStringLiteral("read definition"));
    if (!makeDefinition()) {
        return false;
    }
    FDefinitionCustom& definition = *mDefinition.ptr();
    takeDocu();
    definition.replaceEntries(buildNodes(nodes));
    mObjectAreaLines = marker < 0 ? 0 : text.leftRef(marker).count(QLatin1Char('\n'));
    importObjectsFromString(marker < 0 ? QString() : text.mid(marker + smObjectArea.size()));
    mHasObjects = true;
    if (mHasLate) {
        definition.replaceEntries(buildNodes(nodes));
    }
    if (mFaultyDefaults > mostErrors) {
        FLogMsg::warning(mSource,
                         QStringLiteral("%1 more defaults can't be taken over").arg(mFaultyDefaults - mostErrors),
                         QStringLiteral("their entries have none now; give them one"));
    }
    return true;
}

// All of it, before anything of the model is touched.
bool FLodmDefinitionParser::parse(const QString& text, Nodes& nodes) {
    if (const auto slow = FLodmSlowTag::find(text)) {
        error(placeOf(text, slow->place), slow->reason);
        return false;
    }
    FLodmXmlReader xml(text);
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
    const int version = wholeNumber(xml, lodm::versionAttr, getAttr(xml, lodm::versionAttr));
    if (version < 1 || version > lodm::formatVersion) {
        xml.raise(QStringLiteral("the file has version %1 of the format, and this program reads version %2; a "
                                 "newer release of the program may read it")
                      .arg(version)
                      .arg(lodm::formatVersion));
        return;
    }
    mName = getAttr(xml, lodm::nameAttr);
    while (xml.nextChild()) {
        xml.isElement(lodm::docuElement) ? readDocu(xml) : readEntry(xml, nodes, 1);
    }
    checkNames(xml, nodes);
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

void FLodmDefinitionParser::readEntry(FLodmXmlReader& xml, Nodes& nodes, int level) {
    FLodmEntry entry;
    entry.isGroup = xml.isElement(lodm::groupElement);
    if (!entry.isGroup && !xml.isElement(lodm::entryElement)) {
        xml.raise(QStringLiteral("expected <%1> or <%2>, found %3")
                      .arg(word(lodm::groupElement), word(lodm::entryElement), xml.tag()));
        return;
    }
    if (level > mostEntryLevels) {
        xml.raise(QStringLiteral("entries stand in one another on more than %1 levels").arg(mostEntryLevels));
        return;
    }
    if (++mCount > FEntryTree::mostEntries) {
        xml.raise(QStringLiteral("there are more than %1 entries").arg(FEntryTree::mostEntries));
        return;
    }
    readFrame(xml, entry);
    entry.isGroup ? readGroup(xml, entry, level) : readValues(xml, entry);
    nodes.push_back(std::move(entry));
}

void FLodmDefinitionParser::readFrame(FLodmXmlReader& xml, FLodmEntry& entry) {
    QStringList known{word(lodm::nameAttr), word(lodm::leastAttr), word(lodm::mostAttr), word(lodm::hiddenAttr)};
    if (!entry.isGroup) {
        known.append(word(lodm::typeAttr));
    }
    checkAttr(xml, known);
    entry.name = getAttr(xml, lodm::nameAttr);
    if (!isEntryName(entry.name)) {
        xml.raise(QStringLiteral("expected a name without | [ ] < > and line ends as \"name\" of %1, found \"%2\"")
                      .arg(xml.tag(), entry.name));
    }
    readOccurrences(xml, entry);
    const QString hidden = getAttr(xml, lodm::hiddenAttr, word(lodm::falseWord));
    entry.hidden = hidden == QLatin1String(lodm::trueWord);
    if (!entry.hidden && hidden != QLatin1String(lodm::falseWord)) {
        xml.raise(
            QStringLiteral("expected \"true\" or \"false\" as \"hidden\" of %1, found \"%2\"").arg(xml.tag(), hidden));
    }
    entry.type = getAttr(xml, lodm::typeAttr);
    if (!entry.type.isEmpty() && !FPrototypes::find(entry.type)) {
        xml.raise(QStringLiteral("the class \"%1\" of entry \"%2\" isn't known; is a plug-in missing?")
                      .arg(entry.type, entry.name));
    }
}

void FLodmDefinitionParser::readOccurrences(FLodmXmlReader& xml, FLodmEntry& entry) {
    entry.least = wholeNumber(xml, lodm::leastAttr, getAttr(xml, lodm::leastAttr, QStringLiteral("1")));
    entry.most = wholeNumber(xml, lodm::mostAttr, getAttr(xml, lodm::mostAttr, QStringLiteral("1")));
    if (entry.least < 0 || entry.most < std::max(1, entry.least) || entry.most > FEntryDef::mostOccurrences) {
        xml.raise(QStringLiteral("expected 0 ≤ least ≤ most ≤ %1 and 1 ≤ most, found least %2 and most %3")
                      .arg(FEntryDef::mostOccurrences)
                      .arg(entry.least)
                      .arg(entry.most));
    }
}

void FLodmDefinitionParser::readGroup(FLodmXmlReader& xml, FLodmEntry& group, int level) {
    while (xml.nextChild()) {
        if (xml.isElement(lodm::descriptionElement)) {
            checkAttr(xml, {});
            group.description = xml.plainText();
        } else {
            readEntry(xml, group.children, level + 1);
        }
    }
    checkNames(xml, group.children);
}

void FLodmDefinitionParser::readValues(FLodmXmlReader& xml, FLodmEntry& entry) {
    while (xml.nextChild()) {
        if (xml.isElement(lodm::descriptionElement)) {
            checkAttr(xml, {});
            entry.description = xml.plainText();
        } else if (xml.isElement(lodm::defaultElement)) {
            readDefault(xml, entry);
        } else {
            xml.raise(QStringLiteral("expected <%1> or <%2>, found %3")
                          .arg(word(lodm::defaultElement), word(lodm::descriptionElement), xml.tag()));
        }
    }
    const bool isTold = entry.kind != FLodmEntry::Default::None && entry.kind != FLodmEntry::Default::Script;
    if (entry.type.isEmpty() && !isTold) {
        xml.raise(QStringLiteral("the type of entry \"%1\" isn't told; give it \"%2\", or a default that isn't a "
                                 "script text")
                      .arg(entry.name, word(lodm::typeAttr)));
    }
}

void FLodmDefinitionParser::readDefault(FLodmXmlReader& xml, FLodmEntry& entry) {
    if (entry.kind != FLodmEntry::Default::None) {
        xml.raise(QStringLiteral("entry \"%1\" has two defaults; remove one").arg(entry.name));
    }
    checkAttr(xml, {word(lodm::kindAttr)});
    const QString kind = getAttr(xml, lodm::kindAttr);
    entry.kind = kindOfWord(kind);
    entry.valuePlace = xml.place();
    if (entry.kind == FLodmEntry::Default::None) {
        xml.raise(QStringLiteral("expected number, text, truth or script as \"kind\" of %1, found \"%2\"")
                      .arg(xml.tag(), kind));
        return;
    }
    entry.value = xml.plainText();
    const QString fault = xml.hasError() ? QString() : FLodmDefaultValue(entry).fault();
    if (!fault.isEmpty()) {
        xml.raise(fault);
    }
}

QString FLodmDefinitionParser::getAttr(const FLodmXmlReader& xml, const char* name, const QString& byDefault) {
    const QXmlStreamAttributes attributes = xml.attributes();
    const QLatin1String key(name);
    return attributes.hasAttribute(key) ? FLodmText::fromXml(attributes.value(key).toString()) : byDefault;
}

void FLodmDefinitionParser::checkAttr(FLodmXmlReader& xml, const QStringList& known) {
    for (const QXmlStreamAttribute& attribute : xml.attributes()) {
        const QString name = attribute.qualifiedName().toString();
        if (!known.contains(name)) {
            xml.raise(QStringLiteral("%1 has no attribute \"%2\"%3").arg(xml.tag(), name, didYouMean(name, known)));
        }
    }
}

void FLodmDefinitionParser::error(const FPlace& place, const QString& message) {
    mDefinition = {};
    FLogMsg::error(place.toString(mSource), QStringLiteral("the definition can't be read: ") + message,
                   QStringLiteral("nothing was read; correct the file, or save the definition again"));
}

// A class makes objects through its creator, as a script would.
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
            mSource, QStringLiteral("the name \"%1\" %2; the new definition is \"%3\"")
                         .arg(mName, isTaken ? QStringLiteral("is taken") : QStringLiteral("isn't one of an object"),
                              mDefinition->getName()));
    }
    return static_cast<bool>(mDefinition);
}

QList<FExpr<FEntryBase>> FLodmDefinitionParser::buildNodes(const Nodes& nodes) {
    QList<FExpr<FEntryBase>> entries;
    for (const FLodmEntry& node : nodes) {
        const FExprBase value = valueOf(node);
        const bool hasDefault = value.isValid();
        const FObject* type = node.type.isEmpty() ? nullptr : FPrototypes::find(node.type);
        const FExpr<FEntryBase> entry = FEntryDef::make(node.name, node.least, node.most, node.hidden, hasDefault,
                                                        node.description, hasDefault ? value : FExprBase(type));
        for (const FExpr<FEntryBase>& child : buildNodes(node.children)) {
            entry->addEntry(child);
        }
        entries.append(entry);
    }
    return entries;
}

FExprBase FLodmDefinitionParser::valueOf(const FLodmEntry& entry) {
    const FLodmDefaultValue value(entry);
    const bool isLate = value.hasNames();
    mHasLate = mHasLate || isLate;
    if (isLate && !mHasObjects) {
        return {};
    }
    QString reason;
    const FExprBase result = evaluate(entry, reason);
    if (!reason.isEmpty() && isLate == mHasObjects) {
        warnOfDefault(entry, reason);
    }
    return result;
}

// To tell what a missing name is like takes a look at all names there are, which is for the first few.
FExprBase FLodmDefinitionParser::evaluate(const FLodmEntry& entry, QString& reason) const {
    constexpr int mostSuggestions = 20;
    const FLodmDefaultValue value(entry);
    const QString missing = mFaultyDefaults < mostSuggestions ? QString() : value.missingName(mNames);
    if (missing.isEmpty()) {
        return value.evaluate(mNames, reason);
    }
    reason = QStringLiteral("nothing is named \"%1\"").arg(missing);
    return {};
}

void FLodmDefinitionParser::warnOfDefault(const FLodmEntry& entry, const QString& reason) {
    if (++mFaultyDefaults <= mostErrors) {
        FLogMsg::warning(entry.valuePlace.toString(mSource),
                         QStringLiteral("the default of entry \"%1\" can't be taken over: %2").arg(entry.name, reason),
                         QStringLiteral("the entry has none now; give it one"));
    }
}

bool FLodmDefinitionParser::write(QIODevice* device, const FDefinitionCustom* definition) {
    return device && definition && device->write(xmlHeader) == qint64{sizeof(xmlHeader)} - 1 &&
           FLodmEntryWriter(device).write(*definition);
}
