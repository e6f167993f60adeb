#include "genericintegration/io/FGenIntReader.h"

#include "genericintegration/io/FValueSearch.h"
#include "genericintegration/io/findValue.h"
#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/core/FFile.h"
#include "host/core/FLogMsg.h"
#include "host/core/FString.h"
#include "host/lodm/FLodmConfigurationParser.h"
#include "host/run/FResultText.h"
#include "host/run/FResultsGeneric.h"
#include "host/run/FSafePath.h"
#include "host/run/FTableData.h"

#include <QFile>

#include <cmath>
#include <memory>
#include <utility>

FClassData FGenIntReader::mClass("FGenIntReader", &FObject::mClass);

namespace {

using Values = std::vector<const FGenIntResultsFileValue*>;

Values valuesOf(const std::vector<FExpr<FObject>>& elements) {
    Values values;
    for (const FExpr<FObject>& element : elements) {
        if (const auto* value = objectCast<FGenIntResultsFileValue>(element.getObject())) {
            values.push_back(value);
        }
    }
    return values;
}

FAnchor anchorOf(const FGenIntResultsFileValue& value) {
    const bool isFirst = value.mOccurrence.get() == GenIntAnchorOccurrence::First;
    return {value.mAnchor, isFirst ? FAnchorOccurrence::First : FAnchorOccurrence::Last};
}

FValueDescription describe(const FGenIntResultsFileValue& value) {
    FValueDescription description;
    description.name = value.mName;
    description.line = value.mLine;
    description.column = value.mColumn;
    description.anchor = anchorOf(value);
    description.average = value.mCalcAverage;
    const FUnsigned* rows = value.mNumAverageRows.ptr();
    description.averageRows = rows ? rows->getValue() : 0;
    return description;
}

std::vector<FValueDescription> describe(const Values& values) {
    std::vector<FValueDescription> descriptions;
    descriptions.reserve(values.size());
    for (const FGenIntResultsFileValue* value : values) {
        descriptions.push_back(describe(*value));
    }
    return descriptions;
}

FSeparatorSettings separatorsOf(const FGenIntResultsFile& file) {
    return {file.getNumberSeparator(), file.getSpacesAndTabsSeparator(), file.getRegExprSeparator()};
}

/** The search for a template's values, kept with the template. */
struct FKeptSearch : FTemplateCache {
    FKeptSearch(std::vector<FValueDescription> values, const FSeparatorSettings& separators)
        : search(std::move(values), separators) {}

    FValueSearch search;
};

// A study reads one file after the other with the same template.
std::shared_ptr<const FValueSearch> searchFor(const FGenIntResultsFile& file, const Values& values) {
    auto kept = std::dynamic_pointer_cast<const FKeptSearch>(file.readerCache());
    std::vector<FValueDescription> described = describe(values);
    const FSeparatorSettings separators = separatorsOf(file);
    if (!kept || !kept->search.isFor(described, separators)) {
        kept = std::make_shared<const FKeptSearch>(std::move(described), separators);
        file.readerCache() = kept;
    }
    return {kept, &kept->search};
}

const FObject* typeOf(const FGenIntResultsFileValue& value) {
    return value.mType ? value.mType : FDouble::null();
}

QStringList oddities(const FFoundValue& found) {
    static const std::pair<FFoundFlag, const char*> words[] = {
        {FFoundFlag::AnchorMissing, "anchor not found, counted from the top or the bottom of the file"},
        {FFoundFlag::LineBeyondEnd, "line beyond the end"},
        {FFoundFlag::ColumnMissing, "column missing"},
        {FFoundFlag::NotANumber, "not a number"},
        {FFoundFlag::FewerRows, "fewer rows than wished"},
        {FFoundFlag::CutExponent, "number cut before its exponent"},
        {FFoundFlag::Stars, "asterisks in place of a number"},
        {FFoundFlag::NanOrInf, "NaN or Inf in the file"},
        {FFoundFlag::DecimalComma, "decimal comma"},
        {FFoundFlag::TouchesText, "number touches a letter or another number"}};
    QStringList texts;
    if (!found.flags) {
        return texts;
    }
    for (const auto& [flag, text] : words) {
        if (found.flags.testFlag(flag)) {
            texts.append(QString::fromLatin1(text));
        }
    }
    return texts;
}

FNumberOrigin originOf(const FFoundValue& found, const QString& text) {
    return {text, found.line, found.column, found.length, oddities(found)};
}

// Such a number looks as good as any other, but most likely is another one than that which was marked.
void warnOfMissingAnchor(const FGenIntResultsFile& file, const FGenIntResultsFileValue& value, const FFoundValue& found,
                         const QString& text) {
    if (found.flags.testFlag(FFoundFlag::AnchorMissing) && !std::isnan(found.number)) {
        FLogMsg::warning(
            file.getName(),
            QStringLiteral("the anchor \"%1\" of the value \"%2\" isn't in %3; %4 was read from line %5, counted from "
                           "the %6 of the file")
                .arg(value.mAnchor, value.mName, file.getFileName(), text, QString::number(found.line),
                     value.mLine < 0 ? QStringLiteral("bottom") : QStringLiteral("top")),
            QStringLiteral("look at the file of the run and correct the anchor"));
    }
}

}  // namespace

FGenIntReader* FGenIntReader::instance() {
    static FGenIntReader* reader = [] {
        auto* fresh = new FGenIntReader;
        fresh->setOwnedElsewhere();  // a handle that ends must not take it along
        return fresh;
    }();
    return reader;
}

void FGenIntReader::readResults(const FExpr<FGenIntResultsFile>& file, const FExpr<FResultsGeneric>& results,
                                const QString& directory) {
    if (file && results) {
        parseFile(file, results->addTable(file->getFileName(), 0, 0), directory);
    }
}

bool FGenIntReader::readText(const FGenIntResultsFile& file, const QString& directory, FResultText& text) const {
    const QString consequence = QStringLiteral("parsing process aborted");
    if (directory.isEmpty()) {
        text = FResultText::fromString(file.getPlainContent());
    } else {
        auto device = std::make_unique<QFile>(directory + QLatin1Char('/') + file.getFileName());
        const bool leadsOut = FSafePath::leadsOut(file.getFileName());
        if (leadsOut) {
            FLogMsg::info(getClass(),
                          QStringLiteral("\"%1\" leads out of the result directory").arg(file.getFileName()),
                          QStringLiteral("give the template a file name below it"));
        }
        constexpr auto mode = QIODevice::ReadOnly | QIODevice::Unbuffered;
        if (leadsOut || !FFile::openOrdinary(*device, mode).isEmpty()) {
            FLogMsg::info(getClass(),
                          QStringLiteral("Could not open file ") + device->fileName() + QStringLiteral(" for reading"),
                          consequence);
            return false;
        }
        text = FResultText::fromFile(FFileBytes(std::move(device)));
    }
    if (text.isEmpty()) {
        FLogMsg::info(getClass(), QStringLiteral("Empty content, nothing to parse"), consequence);
    }
    return !text.isEmpty();
}

bool FGenIntReader::import(const FGenIntResultsFileValue& value, const QString& directory, const QString& found) {
    if (FSafePath::leadsOut(found)) {
        FLogMsg::info(getClass(), QStringLiteral("\"%1\" leads out of the result directory").arg(found),
                      QStringLiteral("not imported"));
        mImportedObjects.clear();
        return true;
    }
    FLodmConfigurationParser parser{QString()};
    const bool imported = parser.doImport(value.mImportType, directory + found, value.mName);
    if (imported) {
        mImportedObjects = parser.getObjects();
    }
    return imported;
}

void FGenIntReader::parseFile(const FExpr<FGenIntResultsFile>& file, FTableData* table, const QString& directory) {
    if (!file || !table) {
        return;
    }
    mImportedObjects.clear();
    FResultText text = FResultText::fromString(QString());
    if (!readText(*file.ptr(), directory, text)) {
        return;
    }
    const Values values = valuesOf(file->getValues()->getObjects());
    const std::shared_ptr<const FValueSearch> search = searchFor(*file.ptr(), values);
    if (!search->patternError().isEmpty()) {
        FLogMsg::warning(getClass(),
                         QStringLiteral("the separator \"%1\" of %2 isn't a valid regular expression: %3")
                             .arg(file->getRegExprSeparator(), file->getName(), search->patternError()),
                         QStringLiteral("it separates nothing"));
    }
    const FFoundValues found = search->find(text);
    if (!text.isWhole()) {
        FLogMsg::info(getClass(),
                      QStringLiteral("The file %1 was cut while it was read; read it once nothing writes it any more")
                          .arg(file->getFileName()),
                      QStringLiteral("parsing process aborted"));
        return;
    }
    QStringList headers;
    QStringList tooltips;
    FTableData::Rows rows;
    QVector<FNumberOrigin> origins;
    const int count = static_cast<int>(values.size());
    headers.reserve(count);
    tooltips.reserve(count);
    rows.reserve(count);
    origins.reserve(count);
    for (const int number : found.order) {
        const FGenIntResultsFileValue& value = *values[static_cast<std::size_t>(number)];
        const FFoundValue& result = found.values[static_cast<std::size_t>(number)];
        const QString foundText = result.textIn(text);
        headers.append(value.mName);
        if (!directory.isEmpty()) {
            warnOfMissingAnchor(*file.ptr(), value, result, foundText);
        }
        QString tooltip = typeOf(value)->getClass();
        if (!typeOf(value)->isTypeOf(FDouble::null())) {
            tooltip += QLatin1Char('|') + foundText;
        }
        // A failed import leaves the name without a row; from here on the names run ahead of the numbers.
        const bool isFile = typeOf(value) == FFileName::null() && !directory.isEmpty();
        if (isFile && !import(value, directory, foundText)) {
            continue;
        }
        tooltips.append(tooltip);
        rows.append(QVector<double>{result.number});
        origins.append(originOf(result, foundText));
    }
    table->setData(rows);
    table->setAllVerticalHeaders(headers);
    table->setAllVerticalHeadersTooltips(tooltips);
    table->setOrigins(origins);
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
    const FValueSearch search(describe(valuesOf(described)), FSeparatorSettings());
    values.clear();
    for (const int number : search.order(FResultText::fromString(text))) {
        values.push_back(described[static_cast<std::size_t>(number)]);
    }
}

int FGenIntReader::findValue(int& start, int& length, QRegExp& separator, int line, const QString& anchor,
                             const QString& text, int column, bool findNumbers) {
    return ::findValue(start, length, separator, line, anchor, text, column, findNumbers);
}

int FGenIntReader::getAnchorPosition(const FGenIntResultsFileValue& value, const QString& text) const {
    return ::getAnchorPosition(anchorOf(value), text);
}
