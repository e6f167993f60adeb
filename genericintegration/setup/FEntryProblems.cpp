#include "genericintegration/setup/FEntryProblems.h"

#include "genericintegration/io/FTemplateKeys.h"
#include "genericintegration/io/FValueTable.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/setup/FReplacedText.h"
#include "genericintegration/templates/FTemplateTags.h"
#include "host/core/FNumber.h"
#include "host/core/FString.h"
#include "host/design/FConfiguration.h"
#include "host/design/FEntryDef.h"
#include "host/design/FFileReference.h"
#include "host/design/FGeometryExport.h"
#include "host/design/FInputFile.h"
#include "host/design/FParameter.h"
#include "host/design/FResultsFileName.h"
#include "host/lodm/FGeometryContent.h"
#include "host/run/FExternComputation.h"
#include "host/run/FPathManager.h"
#include "host/run/FSafePath.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace {

constexpr int mostNames = 10;

/** The name of an entry as tags spell it. */
QString tagName(const FEntry& entry) {
    const FEntryDef* definition = entry.getDefinition().ptr();
    return definition ? definition->getFullName() : entry.getFullName();
}

QString entryText(const FEntry& entry) {
    return QStringLiteral("the entry \"%1\" ").arg(entry.getFullName());
}

QString setRemedy(const FEntry& entry) {
    return QStringLiteral("Give it a value with setEntryValue(\"%1\", …)").arg(entry.getFullName());
}

bool hasBlanksAround(const QString& text) {
    return text.trimmed().size() < text.size();
}

QString listed(const QStringList& names) {
    const QString more = names.size() > mostNames ? QStringLiteral(" …") : QString();
    return QLatin1Char('"') + names.mid(0, mostNames).join(QStringLiteral("\", \"")) + QLatin1Char('"') + more;
}

/** What a value, or a type of values, is that stands for a file of a run; empty for others. */
QString fileText(const FObject* object) {
    return !object                                     ? QString()
           : object->isTypeOf(FInputFile::null())      ? QStringLiteral("an input file")
           : object->isTypeOf(FGeometryExport::null()) ? QStringLiteral("exported geometry")
           : object->isTypeOf(FFileReference::null())  ? QStringLiteral("the name of a file that the run writes")
                                                       : QString();
}

/** Whether a value does something in a run even if no template names its entry. */
bool worksByItself(const FEntry& entry) {
    const FObject* type = entry.getDefinition() ? entry.getDefinition()->getType() : nullptr;
    const FObject* stored = entry.getValue().getStored();
    const auto works = [](const FObject* object) {
        return object && (object->isTypeOf(FFileReference::null()) || object->isTypeOf(FGeometryExport::null()) ||
                          object->isTypeOf(FFileName::null()));
    };
    return works(type) || works(stored) || works(entry.getValue().getType());
}

/**
 * A computation on whose results an object depends, although it hasn't run yet; null if there is none. Where runs are
 * only checked, none has.
 */
const FExternComputation* supplierWithoutResults(const FObject& object) {
    for (const FObject* supplier : object.getSuppliersCmdHelper({FExternComputation::null()})) {
        const auto* computation = dynamic_cast<const FExternComputation*>(supplier);
        if (computation && (FSetUpCheck::isReplacingRuns() || !computation->getCurrentResults())) {
            return computation;
        }
    }
    return nullptr;
}

/** What a value that isn't finite is: "not a number (NaN)" or "infinite"; empty for others. */
QString nonFinite(const FBasicType& value, bool isComputed) {
    if (value.isTypeOf(FDouble::null())) {
        const double number = value.toDouble();
        return std::isfinite(number) ? QString()
               : std::isnan(number)  ? QStringLiteral("not a number (NaN)")
                                     : QStringLiteral("infinite");
    }
    // What format makes of them. A text that somebody wrote is meant as it is.
    const QString text = isComputed ? value.toPlainString().trimmed().toLower() : QString();
    return text == QLatin1String("nan") || text == QLatin1String("-nan") ? QStringLiteral("not a number (NaN)")
           : text == QLatin1String("inf") || text == QLatin1String("-inf") || text == QLatin1String("+inf")
               ? QStringLiteral("infinite")
               : QString();
}

/** Where runs are only checked, the numbers of results are unknown, and so are the values that were made of them. */
bool isMadeOfUnknown(const FEntry& entry) {
    const auto isUnknown = [](const FExprBase& value) {
        const auto* number = value.isCmd() ? nullptr : objectCast<FBasicType>(value.getObject());
        return number && !nonFinite(*number, true).isEmpty();
    };
    if (supplierWithoutResults(entry) || isUnknown(entry.getValue())) {
        return true;
    }
    const std::vector<FObject*> suppliers = entry.getSuppliersCmdHelper({FParameter::null(), FEntry::null()});
    return std::any_of(suppliers.begin(), suppliers.end(), [&isUnknown](const FObject* supplier) {
        const auto* parameter = dynamic_cast<const FParameter*>(supplier);
        const auto* other = dynamic_cast<const FEntry*>(supplier);
        return (parameter && isUnknown(parameter->getValue())) || (other && isUnknown(other->getValue()));
    });
}

}  // namespace

struct FEntryProblems::FUse {
    QString place;        //!< of the first tag; empty if no template names the entry
    QString columnPlace;  //!< of the first tag with a column after it in its line; empty if there is none
    QString fieldPlace;   //!< of the first tag with any text after it in its line; empty if there is none
};

/** Entries that need results of a computation which has none yet. */
struct FEntryProblems::FAwaited {
    const FExternComputation* supplier;
    QStringList entries;
    QString place;  //!< of the first tag of one of them; empty if no template names any
};

FEntryProblems::FUse FEntryProblems::useOf(const FTagUses& uses, int row) {
    return {uses.places.value(row), uses.columnPlaces.value(row), uses.fieldPlaces.value(row)};
}

FEntryProblems::FEntryProblems(const FConfiguration& configuration, bool mayReadFiles)
    : mConfiguration(configuration), mMayReadFiles(mayReadFiles) {}

void FEntryProblems::find(const FDefinitionGenInt& definition, const FValueTable& table, const FTagUses& uses,
                          FProblemList& problems) {
    for (const FExpr<FGenIntFile>& file : definition.getCommandFiles()) {
        if (file) {
            mTargets.add(file->getFileName(), QStringLiteral("the input template \"%1\"").arg(file->getName()));
        }
    }
    QStringList unused;
    QStringList further;
    QString lastName;
    QList<FAwaited> awaited;
    // A copy, since the evaluation of a value may change the entries.
    const QMap<QString, FExpr<FEntryBase>> entries = mConfiguration.getEntryMap();
    for (const FExpr<FEntryBase>& handle : entries) {
        const auto& entry = static_cast<const FEntry&>(*FEntryBase::of(handle));
        const QString name = tagName(entry);
        const int row = table.getKeys().find(name);
        // Of several occurrences, tags name the first.
        const bool isNamed = row != FTemplateKeys::notFound && table.entryOf(row) == &entry;
        const FUse use = isNamed ? useOf(uses, row) : FUse();
        if (!isAwaiting(entry, use, awaited)) {
            findValue(entry, use, problems);
        }
        if (!uses.places.contains(row) && name != lastName && !worksByItself(entry)) {
            unused.append(name);
            lastName = name;
        } else if (uses.places.contains(row) && !isNamed && !worksByItself(entry)) {
            const FEntry* named = table.entryOf(row);
            if (named && tagName(*named) != name) {
                addSameKey(entry, *named, problems);
            } else {
                further.append(entry.getFullName());
            }
        }
    }
    findAwaited(awaited, problems);
    findFurther(further, problems);
    findReadBack(definition, problems);
    if (unused.isEmpty() || uses.isCut || definition.getFiles().isEmpty()) {
        return;
    }
    problems.warning(definition.getName(),
                     unused.size() == 1
                         ? QStringLiteral("no input template has a tag of the entry \"%1\"").arg(unused.first())
                         : QStringLiteral("no input template has a tag of these %1 entries: %2")
                               .arg(QString::number(unused.size()), listed(unused)),
                     QStringLiteral("Write \"%1\" where the value belongs, or remove the entry")
                         .arg(FTemplateTags::tagOf(unused.first())));
}

// Evaluating the value would only report, for each call, that there are no results.
bool FEntryProblems::isAwaiting(const FEntry& entry, const FUse& use, QList<FAwaited>& awaited) {
    const FExternComputation* supplier =
        FSetUpCheck::isReplacingRuns() || entry.getValue().isDetached() ? nullptr : supplierWithoutResults(entry);
    if (!supplier) {
        return false;
    }
    auto known = std::find_if(awaited.begin(), awaited.end(),
                              [supplier](const FAwaited& each) { return each.supplier == supplier; });
    if (known == awaited.end()) {
        known = awaited.insert(known, {supplier, {}, {}});
    }
    known->entries.append(entry.getFullName());
    known->place = known->place.isEmpty() ? use.place : known->place;
    return true;
}

void FEntryProblems::findAwaited(const QList<FAwaited>& awaited, FProblemList& problems) const {
    for (const FAwaited& each : awaited) {
        // A run writes something else for them.
        const bool isWritten = mMayReadFiles && !each.place.isEmpty();
        const QString needed = each.entries.size() == 1
                                   ? QStringLiteral("the entry %1 needs").arg(listed(each.entries))
                                   : QStringLiteral("the entries %1 need").arg(listed(each.entries));
        problems
            .add(isWritten ? FSetUpProblem::Severity::Error : FSetUpProblem::Severity::Warning,
                 mConfiguration.getName(),
                 QStringLiteral("%1 results of %2, which has none yet%3")
                     .arg(needed, each.supplier->getName(),
                          isWritten ? QStringLiteral(", and \"SHOULD_BE_EXPORTED\" is written") : QString()),
                 QStringLiteral("Run %1 first, or both with run(true) or merix run --chain")
                     .arg(each.supplier->getName()),
                 each.place)
            .isOfValue = true;
    }
}

void FEntryProblems::addSameKey(const FEntry& entry, const FEntry& named, FProblemList& problems) const {
    problems.warning(
        mConfiguration.getName(),
        QStringLiteral("no file gets the value of \"%1\": its tags mean \"%2\", because case doesn't matter "
                       "in tags")
            .arg(entry.getFullName(), named.getFullName()),
        QStringLiteral("Rename one of these entries"));
}

void FEntryProblems::findFurther(const QStringList& names, FProblemList& problems) const {
    if (!names.isEmpty()) {
        problems.warning(mConfiguration.getName(),
                         QStringLiteral("no file gets the value of %1, because tags name the first occurrence only")
                             .arg(listed(names)),
                         QStringLiteral("Define an entry of its own for each value, or remove these occurrences"));
    }
}

void FEntryProblems::findValue(const FEntry& entry, const FUse& use, FProblemList& problems) {
    const FExprBase& value = entry.getValue();
    if (value.isDetached()) {
        problems
            .error(mConfiguration.getName(), entryText(entry) + QStringLiteral("refers to an object that is gone"),
                   setRemedy(entry), use.place)
            .isOfValue = true;
        return;
    }
    if (!mMayReadFiles && !value.canSafelyBeUpdated(false)) {
        return;
    }
    const FObject* object = entry.getValueObject();
    findFile(entry, object, problems);
    findMissingFile(entry, object, problems);
    if (!use.place.isEmpty()) {
        findWritten(entry, object, use, problems);
    }
}

void FEntryProblems::findWritten(const FEntry& entry, const FObject* value, const FUse& use,
                                 FProblemList& problems) const {
    const auto* basic = objectCast<FBasicType>(value);
    if (!value) {
        problems
            .error(mConfiguration.getName(),
                   entryText(entry) + QStringLiteral("is NULL, and \"SHOULD_BE_EXPORTED\" is written for it"),
                   setRemedy(entry), use.place)
            .isOfValue = true;
    } else if (!basic) {
        const bool isList = const_cast<FObject*>(value)->castToObjectList() != nullptr;
        problems
            .error(mConfiguration.getName(),
                   entryText(entry) + QStringLiteral("holds %1, and \"SHOULD_BE_EXPORTED\" is written for it")
                                          .arg(isList ? QStringLiteral("a list")
                                                      : QStringLiteral("an object (%1)").arg(value->getClass())),
                   QStringLiteral("Give it a number or a text with setEntryValue(\"%1\", …)").arg(entry.getFullName()),
                   use.place)
            .isOfValue = true;
    } else if (const QString fault = nonFinite(*basic, entry.getValue().isCmd()); !fault.isEmpty()) {
        if (FSetUpCheck::isReplacingRuns() && isMadeOfUnknown(entry)) {
            return;
        }
        problems
            .warning(mConfiguration.getName(),
                     entryText(entry) +
                         QStringLiteral("is %1, and \"%2\" is written for it").arg(fault, basic->toPlainString()),
                     setRemedy(entry), use.place)
            .isOfValue = true;
    } else if (basic->toPlainString().contains(QChar::Null)) {
        problems
            .error(
                mConfiguration.getName(),
                entryText(entry) + QStringLiteral("has a NUL character, and all text after it is missing in the file"),
                setRemedy(entry), use.place)
            .isOfValue = true;
    } else if (!use.fieldPlace.isEmpty()) {
        findOtherWidth(entry, basic->toPlainString(), use, problems);
    }
}

// A text with blanks at its start or end was made for fixed columns. Only such a default has the width of its column.
void FEntryProblems::findOtherWidth(const FEntry& entry, const QString& text, const FUse& use,
                                    FProblemList& problems) const {
    const FEntryDef* definition = entry.getDefinition().ptr();
    const FExprBase standard = definition ? definition->getDefaultValue() : FExprBase();
    const bool isReadable = standard.isValid() && standard.canSafelyBeUpdated(false);
    const auto* value = isReadable ? objectCast<FBasicType>(standard.getObject()) : nullptr;
    const QString fitting = value && !FReplacedText::standsFor(text, value) ? value->toPlainString() : text;
    const bool isPadded = hasBlanksAround(fitting);
    const bool isLonger = text.size() > fitting.size();
    const bool hasOtherWidth = isPadded ? text.size() != fitting.size() : isLonger && !hasBlanksAround(text);
    const QString place = use.columnPlace.isEmpty() && isPadded ? use.fieldPlace : use.columnPlace;
    if (!place.isEmpty() && hasOtherWidth) {
        const QString width = isPadded ? QStringLiteral("a text of %1 characters").arg(fitting.size())
                                       : QStringLiteral("a text as wide as its column");
        problems
            .warning(mConfiguration.getName(),
                     entryText(entry) +
                         QStringLiteral("is written as \"%1\", which is %2 than its default, \"%3\", so that the text "
                                        "after the tag moves")
                             .arg(text, isLonger ? QStringLiteral("longer") : QStringLiteral("shorter"), fitting),
                     QStringLiteral("If the program reads fixed columns, give \"%1\" %2, with format or with blanks "
                                    "around it")
                         .arg(entry.getFullName(), width),
                     place)
            .isOfValue = true;
    }
}

void FEntryProblems::findFile(const FEntry& entry, const FObject* value, FProblemList& problems) {
    if (const auto* input = dynamic_cast<const FInputFile*>(value)) {
        findInputFile(entry, *input, problems);
    } else if (const auto* geometry = dynamic_cast<const FGeometryExport*>(value)) {
        findExport(entry, *geometry, problems);
    } else if (const auto* result = dynamic_cast<const FResultsFileName*>(value)) {
        addOutside(entry, result->getFileNameText(), false, problems);
    }
}

// NULL is how a file is left out.
void FEntryProblems::findMissingFile(const FEntry& entry, const FObject* value, FProblemList& problems) const {
    const QString usual = fileText(entry.getDefinition() ? entry.getDefinition()->getType() : nullptr);
    if (!value || usual.isEmpty() || !fileText(value).isEmpty()) {
        return;
    }
    const auto* basic = objectCast<FBasicType>(value);
    problems
        .warning(mConfiguration.getName(),
                 entryText(entry) +
                     QStringLiteral("is %1, which is no file, while its default is %2")
                         .arg(basic ? QLatin1Char('"') + basic->toPlainString() + QLatin1Char('"') : value->getClass(),
                              usual),
                 QStringLiteral("Give it a file, such as inputFile(\"NAME\")"))
        .isOfValue = true;
}

void FEntryProblems::findInputFile(const FEntry& entry, const FInputFile& file, FProblemList& problems) {
    const FExprBase& name = file.getFileName();
    if (!name.isDetached() && !mMayReadFiles && !name.canSafelyBeUpdated(false)) {
        return;
    }
    // Where runs are only checked, the other one might have been run.
    if (FSetUpCheck::isReplacingRuns() && supplierWithoutResults(file)) {
        return;
    }
    const QString path = name.isDetached() ? QString() : file.getFileNameText();
    const QFileInfo info(QDir(FPathManager::getProjectDir()), path);
    QString fault;
    if (path.isEmpty()) {
        fault = QStringLiteral("links to no file: %1 gives no name").arg(name.toHistoryString());
    } else if (!info.isFile()) {
        fault = QStringLiteral("links to a file that doesn't exist: %1").arg(info.absoluteFilePath());
    }
    if (!fault.isEmpty()) {
        FSetUpProblem& problem =
            problems.error(mConfiguration.getName(), entryText(entry) + fault,
                           QStringLiteral("Name an existing file for \"%1\"").arg(entry.getFullName()));
        problem.isOfValue = true;
        problem.isReportedByRun = true;
        return;
    }
    addOutside(entry, file.toPlainString(), true, problems);
    findSameName(entry, file, problems);
    if (mMayReadFiles) {
        findInvalidRun(entry, info.absoluteFilePath(), problems);
    }
}

void FEntryProblems::findExport(const FEntry& entry, const FGeometryExport& geometry, FProblemList& problems) {
    addOutside(entry, geometry.getFileName(), true, problems);
    findSameName(entry, geometry, problems);
    if (const QString fault = FGeometryContent(geometry).fault(); !fault.isEmpty()) {
        FSetUpProblem& problem =
            problems.error(mConfiguration.getName(), entryText(entry) + QStringLiteral("exports nothing: ") + fault,
                           QStringLiteral("Correct the export of \"%1\"").arg(entry.getFullName()));
        problem.isOfValue = true;
        problem.isReportedByRun = true;
    }
}

void FEntryProblems::findSameName(const FEntry& entry, const FObject& value, FProblemList& problems) {
    const QString other = mTargets.addValue(value, entryText(entry).trimmed());
    if (!other.isEmpty()) {
        problems
            .error(mConfiguration.getName(),
                   entryText(entry) + QStringLiteral("writes \"%1\" into the folder of the run, as %2 does, and only "
                                                     "one of the two files would be there")
                                          .arg(FInputTargets::nameOf(value), other),
                   QStringLiteral("Give one of them another name, or a folder such as in inputFile(\"mesh.dat\", "
                                  "\"left\")"))
            .isOfValue = true;
    }
}

void FEntryProblems::findReadBack(const FDefinitionGenInt& definition, FProblemList& problems) const {
    for (const FExpr<FGenIntFile>& file : definition.getResultsFiles()) {
        const QString writer = file ? mTargets.writerOf(file->getFileName()) : QString();
        if (!writer.isEmpty()) {
            problems.warning(file->getName(),
                             QStringLiteral("it reads %1, which %2 writes before the program starts")
                                 .arg(file->getFileName(), writer),
                             QStringLiteral("If the program doesn't write it again, name the file that it writes with "
                                            "setFileName"));
        }
    }
}

// To know whether the set-up of the other run has changed, its values are evaluated.
void FEntryProblems::findInvalidRun(const FEntry& entry, const QString& path, FProblemList& problems) const {
    const FComputationResults* results = FComputationResults::ofFile(path);
    const QString fault = results ? results->getFaultOfFiles() : QString();
    if (!fault.isEmpty()) {
        const QString computation = results->getComputation()->getName();
        problems.warning(mConfiguration.getName(),
                         entryText(entry) + QStringLiteral("links to a file of a run of %1 that isn't valid (%2): %3")
                                                .arg(computation, fault, path),
                         QStringLiteral("Run %1 again, before this computation").arg(computation));
    }
}

void FEntryProblems::addOutside(const FEntry& entry, const QString& file, bool isReportedByRun,
                                FProblemList& problems) const {
    if (FSafePath::leadsOut(file)) {
        FSetUpProblem& problem = problems.error(
            mConfiguration.getName(),
            entryText(entry) + QStringLiteral("names \"%1\", which is outside the folder of the run").arg(file),
            QStringLiteral("Give \"%1\" a path below the folder").arg(entry.getFullName()));
        problem.isOfValue = true;
        problem.isReportedByRun = isReportedByRun;
    }
}
