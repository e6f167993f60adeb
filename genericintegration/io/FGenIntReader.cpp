#include "genericintegration/io/FGenIntReader.h"

#include "genericintegration/io/FColumnPlace.h"
#include "genericintegration/io/FNumberPattern.h"
#include "genericintegration/io/FSeparatorMatches.h"
#include "genericintegration/io/FTemplateValues.h"
#include "genericintegration/io/FValueRows.h"
#include "genericintegration/io/FValueSearch.h"
#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/core/FFile.h"
#include "host/core/FLogMsg.h"
#include "host/lodm/FLodmConfigurationParser.h"
#include "host/run/FResultFiles.h"
#include "host/run/FResultText.h"
#include "host/run/FResultsGeneric.h"
#include "host/run/FSafePath.h"

#include <QDir>
#include <QFile>

#include <utility>

FClassData FGenIntReader::mClass("FGenIntReader", &FObject::mClass);

namespace {

/** The search for a template's values, kept with the template. */
struct FKeptSearch : FTemplateCache {
    FKeptSearch(std::vector<FValueDescription> values, const FSeparatorSettings& separators)
        : search(std::move(values), separators) {}

    FValueSearch search;
};

// A study reads many files one after the other with the same template.
std::shared_ptr<const FValueSearch> searchFor(const FGenIntResultsFile& file, const FTemplateValues::Values& values) {
    std::vector<FValueDescription> described = FTemplateValues::describe(values);
    const FSeparatorSettings separators = FTemplateValues::separatorsOf(file);
    auto kept = std::dynamic_pointer_cast<const FKeptSearch>(file.readerCache());
    if (!kept || !kept->search.isFor(described, separators)) {
        kept = std::make_shared<const FKeptSearch>(std::move(described), separators);
        file.readerCache() = kept;
    }
    return {kept, &kept->search};
}

QString aborted() {
    return QStringLiteral("parsing process aborted");
}

/** Why a name gives no file of a directory; empty if it does, or if there is no such file. */
QString faultOfPlace(const QString& directory, const QString& name) {
    if (FSafePath::leadsOut(name)) {
        return QStringLiteral("\"%1\" leads out of the result directory").arg(name);
    }
    const QString link = FResultFiles::faultOfLinks(directory, name);
    return link.isEmpty() ? QString() : QStringLiteral("\"%1\": %2").arg(name, link);
}

}  // namespace

FGenIntReader* FGenIntReader::instance() {
    static FGenIntReader* reader = [] {
        auto* fresh = new FGenIntReader;
        fresh->setOwnedElsewhere();  // the last handle on it mustn't delete it
        return fresh;
    }();
    return reader;
}

void FGenIntReader::parseFile(const FExpr<FGenIntResultsFile>& file, FTableData* table, const QString& directory) {
    if (!file || !table) {
        return;
    }
    const std::vector<FExpr<FObject>> elements = file->getValues()->getObjects();  // kept alive during an evaluation
    const FTemplateValues::Values values = FTemplateValues::among(elements);
    const std::shared_ptr<const FValueSearch> search = searchFor(*file.ptr(), values);
    // Only now: the number of rows of an average may depend on other results, which this reader then reads first.
    mImportedObjects.clear();
    mImportedZones.clear();
    const std::optional<FResultText> text = readText(*file.ptr(), directory);
    if (!text) {
        return;
    }
    const FFoundValues found = search->find(*text);
    if (!text->isWhole()) {
        FLogMsg::info(getClass(),
                      QStringLiteral("The file %1 was cut while it was read; read it once nothing writes it any more")
                          .arg(file->getFileName()),
                      aborted());
        return;
    }
    FValueRows rows(static_cast<int>(values.size()));
    for (const int number : found.order) {
        const FGenIntResultsFileValue& value = *values[static_cast<std::size_t>(number)];
        const FFoundValue& result = found.values[static_cast<std::size_t>(number)];
        const QString foundText = result.textIn(*text);
        rows.append(value, number, result, foundText);
        if (!directory.isEmpty()) {
            importFile(value, directory, foundText);
        }
    }
    rows.fill(*table);
}

void FGenIntReader::readResults(const FExpr<FGenIntResultsFile>& file, const FExpr<FResultsGeneric>& results,
                                const QString& directory) {
    if (file && results) {
        parseFile(file, results->addTable(file->getFileName(), 0, 0), directory);
    }
}

std::optional<FResultText> FGenIntReader::readText(const FGenIntResultsFile& file, const QString& directory) const {
    std::optional<FResultText> text;
    if (directory.isEmpty()) {
        text = FResultText::fromString(file.getPlainContent());
    } else if (std::unique_ptr<QFile> device = openFile(file, directory)) {
        text = FResultText::fromFile(FFileBytes(std::move(device)));
    }
    if (text && text->isEmpty()) {
        FLogMsg::info(getClass(), QStringLiteral("Empty content, nothing to parse"), aborted());
        text.reset();
    }
    return text;
}

std::unique_ptr<QFile> FGenIntReader::openFile(const FGenIntResultsFile& file, const QString& directory) const {
    const QString name = file.getFileName();
    auto device = std::make_unique<QFile>(QDir::cleanPath(directory + QLatin1Char('/') + name));
    const QString fault = faultOfPlace(directory, name);
    if (!fault.isEmpty()) {
        FLogMsg::info(getClass(), fault, QStringLiteral("It isn't read"));
    }
    constexpr auto mode = QIODevice::ReadOnly | QIODevice::Unbuffered;
    const bool isUsable = fault.isEmpty() && FResultFiles::faultOfName(name).isEmpty();
    if (!isUsable || !FFile::openOrdinary(*device, mode).isEmpty()) {
        FLogMsg::info(getClass(),
                      QStringLiteral("Could not open file ") + device->fileName() + QStringLiteral(" for reading"),
                      aborted());
        return nullptr;
    }
    return device;
}

void FGenIntReader::importFile(const FGenIntResultsFileValue& value, const QString& directory, const QString& name) {
    if (!FTemplateValues::isFileName(value)) {
        return;
    }
    if (const QString fault = faultOfPlace(directory, name); !fault.isEmpty()) {
        FLogMsg::info(getClass(), fault, QStringLiteral("Not imported"));
        mImportedObjects.clear();
        return;
    }
    FLodmConfigurationParser parser{QString()};
    if (parser.doImport(value.mImportType, directory + name, value.mName)) {
        mImportedObjects = parser.getObjects();
        mImportedZones += parser.getZones();
    }
}

void FGenIntReader::sortValues(std::vector<FExpr<FObject>>& values, const QString& text) {
    if (text.isEmpty()) {
        return;
    }
    std::vector<FExpr<FObject>> described;
    for (const FExpr<FObject>& value : values) {
        if (objectCast<FGenIntResultsFileValue>(value.getObject())) {
            described.push_back(value);
        }
    }
    const FValueSearch search(
        FTemplateValues::describe(FTemplateValues::among(described), &FTemplateValues::describePlace),
        FSeparatorSettings());
    values.clear();
    for (const int number : search.order(FResultText::fromString(text))) {
        values.push_back(described[static_cast<std::size_t>(number)]);
    }
}

int FGenIntReader::findValue(int& start, int& length, QRegExp& separator, int line, const QString& anchor,
                             const QString& text, int column, bool findNumbers) {
    start = 0;
    length = 0;
    if (findNumbers) {
        separator = FNumberPattern::pattern();
    }
    if (line == 0 && !anchor.isEmpty()) {
        start = text.indexOf(anchor, 0, Qt::CaseInsensitive) + anchor.length();
    }
    FSeparatorMatches::startText();
    const FColumnPlace place =
        FColumnPlace::find(*FSeparator::of(separator.pattern()), text, start, column, findNumbers);
    start = place.start;
    length = place.length;
    return place.exists ? length : -1;
}

int FGenIntReader::getAnchorPosition(const FGenIntResultsFileValue& value, const QString& text) const {
    return ::getAnchorPosition(FTemplateValues::anchorOf(value), text);
}
