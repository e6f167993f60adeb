#include "genericintegration/setup/FProblems.h"

#include "genericintegration/io/FTemplateValues.h"
#include "genericintegration/io/FValueTable.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/setup/FEntryProblems.h"
#include "genericintegration/setup/FResultProblems.h"
#include "genericintegration/setup/FTagProblems.h"
#include "genericintegration/templates/FExportsGroup.h"
#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/core/FNearestName.h"
#include "host/core/FString.h"
#include "host/design/FConfiguration.h"
#include "host/design/FEntry.h"
#include "host/design/FFileReference.h"
#include "host/design/FGeometryExport.h"
#include "host/run/FExternComputation.h"
#include "host/run/FProgramSearch.h"
#include "host/run/FResultFiles.h"
#include "host/run/FSafePath.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

#include <algorithm>
#include <optional>

FProblems::FProblems(const FExternComputation* computation, const FConfiguration* configuration,
                     const FDefinitionGenInt* definition, bool mayReadFiles)
    : mComputation(computation), mConfiguration(configuration), mDefinition(definition), mMayReadFiles(mayReadFiles) {}

FSetUpCheck::Problems FProblems::find() {
    if (mComputation) {
        findProgram();
        findShellWords();
    }
    if (findMissing()) {
        return mProblems.all();
    }
    findTemplateNames();
    if (mComputation) {
        findStandardInput();
        findOptionalFiles();
        findRequiredValues();
    }
    std::optional<FValueTable> table;
    if (mConfiguration) {
        table.emplace(*mConfiguration, *mDefinition, FValueTable::Use::Export);
    }
    FTagUses uses;
    findTags(table ? &*table : nullptr, uses);
    FResultProblems::find(mDefinition->getResultsFiles(), mProblems);
    if (table) {
        FEntryProblems(*mConfiguration, mMayReadFiles).find(*mDefinition, *table, uses, mProblems);
    }
    return mProblems.all();
}

FSetUpCheck::Inputs FProblems::inputs() {
    if (mConfiguration && mDefinition) {
        const FValueTable table(*mConfiguration, *mDefinition, FValueTable::Use::Export);
        FTagUses uses;
        findTags(&table, uses);
    }
    return mInputs;
}

/** Returns whether the definition is missing, without which nothing else is known. */
bool FProblems::findMissing() {
    if (mComputation && !mConfiguration) {
        mProblems.error(mComputation->getName(), QStringLiteral("the computation has no configuration"),
                        QStringLiteral("Set one with setConfiguration"));
    } else if (mConfiguration && !mDefinition) {
        mProblems.error(mConfiguration->getName(), QStringLiteral("the configuration has no definition"),
                        QStringLiteral("Set one with setDefinition"));
    } else if (mDefinition && mDefinition->getFiles().isEmpty()) {
        mProblems.warning(mDefinition->getName(),
                          QStringLiteral("the definition has no files, so nothing is written and no number is read"),
                          QStringLiteral("Add its templates with setFiles"));
    }
    return !mDefinition;
}

void FProblems::findProgram() {
    const FProgramSettings& program = mComputation->getProgram();
    FProgramFault fault = program.fault();
    if (fault.text.isEmpty()) {
        fault = program.search().fault();
    }
    if (!fault.text.isEmpty()) {
        mProblems.error(mComputation->getName(), fault.text, fault.remedy).isReportedByRun = true;
    }
}

// Such words may be meant, as by "find", but a line that was copied from a terminal is more likely.
void FProblems::findShellWords() {
    const QString shell =
        QStringLiteral("Let a shell execute the line: setExecutable(\"sh\") and setArguments([\"-c\", \"…\"])");
    const QString output = QStringLiteral("Leave it out: what the program prints is kept as stdout.txt and stderr.txt");
    const std::pair<const char*, QString> remedies[] = {
        {"<", QStringLiteral("Name the file with setStandardInput instead")},
        {">", output},
        {">>", output},
        {"1>", output},
        {"2>", output},
        {"2>&1", output},
        {"|", shell},
        {"&&", shell}};
    for (const QString& argument : mComputation->getProgram().arguments) {
        for (const auto& [word, remedy] : remedies) {
            if (argument == QLatin1String(word)) {
                mProblems.warning(
                    mComputation->getName(),
                    QStringLiteral("the program gets the argument \"%1\" as it is, since no shell reads it")
                        .arg(argument),
                    remedy);
            }
        }
    }
}

void FProblems::findTemplateNames() {
    QHash<QString, QString> writers;
    for (const FExpr<FGenIntFile>& handle : mDefinition->getCommandFiles()) {
        const FGenIntFile* file = handle.ptr();
        const QString fileName = file ? file->getFileName() : QString();
        const QString fault = file ? FResultFiles::faultOfTemplate(fileName) : QString();
        if (!fault.isEmpty()) {
            mProblems
                .error(file->getName(), QStringLiteral("the input template ") + fault,
                       QStringLiteral("Name the file that the program reads, below the folder of the run, with "
                                      "setFileName"))
                .isReportedByRun = true;
        } else if (file && writers.contains(fileName)) {
            mProblems.error(file->getName(),
                            QStringLiteral("it writes %1, as \"%2\" does, and replaces what that writes")
                                .arg(fileName, writers.value(fileName)),
                            QStringLiteral("Give one of them another file name with setFileName"));
        } else if (file) {
            writers.insert(fileName, file->getName());
        }
    }
}

void FProblems::findStandardInput() {
    const QString& name = mComputation->getProgram().standardInput;
    if (!name.isEmpty() && !FSafePath::leadsOut(name) && !mayBeWritten(name)) {
        mProblems
            .error(mComputation->getName(),
                   QStringLiteral("the file of the standard input, \"%1\", is none that a run writes").arg(name),
                   QStringLiteral("Name the file of an input template with setStandardInput"))
            .isReportedByRun = true;
    }
}

bool FProblems::mayBeWritten(const QString& name) const {
    const QString sought = QDir::cleanPath(name);
    for (const FExpr<FGenIntFile>& file : mDefinition->getCommandFiles()) {
        if (file && QDir::cleanPath(file->getFileName()) == sought) {
            return true;
        }
    }
    const auto isFile = [](const FExpr<FEntryBase>& handle) {
        const FObject* value = static_cast<const FEntry&>(*FEntryBase::of(handle)).getValue().getType();
        return value && (value->isTypeOf(FFileReference::null()) || value->isTypeOf(FGeometryExport::null()) ||
                         value->isTypeOf(FFileName::null()));
    };
    const QMap<QString, FExpr<FEntryBase>> entries =
        mConfiguration ? mConfiguration->getEntryMap() : QMap<QString, FExpr<FEntryBase>>();
    return std::any_of(entries.begin(), entries.end(), isFile) ||
           QFileInfo::exists(mComputation->getWorkingPath() + sought);
}

void FProblems::findOptionalFiles() {
    const QStringList read = mDefinition->getReadFiles();
    for (const QString& name : mComputation->getSuccessRules().optionalFiles) {
        const auto isSame = [&name](const QString& file) { return QDir::cleanPath(file) == QDir::cleanPath(name); };
        if (std::none_of(read.begin(), read.end(), isSame)) {
            const QString nearest = nearestName(name, read);
            mProblems.warning(mComputation->getName(),
                              QStringLiteral("no result template reads the optional file \"%1\"").arg(name),
                              nearest.isEmpty() ? QStringLiteral("Correct its name in setOptionalFiles")
                                                : QStringLiteral("Did you mean \"%1\"?").arg(nearest));
        }
    }
}

void FProblems::findRequiredValues() {
    QStringList known{FSuccessRules::allValues()};
    for (const FExpr<FGenIntResultsFile>& file : FGenIntResultsFile::among(mDefinition->getResultsFiles())) {
        known += FTemplateValues::namesOf(*file.ptr());
    }
    for (const QString& name : mComputation->getSuccessRules().requiredValues) {
        if (!known.contains(name)) {
            const QString nearest = nearestName(name, known);
            mProblems.error(
                mComputation->getName(),
                QStringLiteral("no result template has the required value \"%1\", so each run fails").arg(name),
                nearest.isEmpty() ? QStringLiteral("Correct its name in setRequiredValues")
                                  : QStringLiteral("Did you mean \"%1\"?").arg(nearest));
        }
    }
}

void FProblems::findTags(const FValueTable* table, FTagUses& uses) {
    const QStringList names = tagNames();
    for (const FExpr<FGenIntFile>& handle : mDefinition->getCommandFiles()) {
        if (const FGenIntFile* file = handle.ptr()) {
            FTagProblems tags(*file, table ? &table->getKeys() : nullptr, names);
            tags.find(mProblems, uses);
            mInputs.append(tags.getInput());
        }
    }
}

/** Everything that a tag can name. */
QStringList FProblems::tagNames() const {
    QStringList names = mDefinition->getEntryMap().keys();
    for (const FExpr<FGenIntFile>& file : mDefinition->getFiles()) {
        if (file) {
            names.append(FExportsGroup::prefix() + file->getFileName());
        }
    }
    return names;
}
