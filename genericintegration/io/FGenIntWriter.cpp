#include "genericintegration/io/FGenIntWriter.h"

#include "genericintegration/io/FTemplateSubstitution.h"
#include "genericintegration/io/FUtf8Output.h"
#include "genericintegration/io/FValueTable.h"
#include "genericintegration/templates/FGenIntCommandFile.h"
#include "genericintegration/templates/FTemplateOwner.h"
#include "genericintegration/templates/FTemplateTags.h"
#include "host/core/FLogMsg.h"
#include "host/core/FSavedFile.h"
#include "host/core/FString.h"
#include "host/design/FConfiguration.h"
#include "host/design/FDefinition.h"
#include "host/design/FEntry.h"
#include "host/run/FSafePath.h"

#include <QDir>
#include <QFile>

#include <algorithm>

FClassData FGenIntWriter::mClass("FGenIntWriter", &FObject::mClass);

namespace {

/** In UTF-16 units. Files may be larger than a QString; a preview doesn't need to be. */
constexpr int longestPreview = 200'000'000;

QString source() {
    return QStringLiteral("Generic Integration Writer");
}

int lastSeparator(const QString& path) {
    return std::max(path.lastIndexOf(QLatin1Char('/')), path.lastIndexOf(QLatin1Char('\\')));
}

bool openForWriting(QFile& file, const QString& name, QString& reason) {
    if (FSafePath::leadsOut(file.fileName().chopped(name.size()), name)) {
        FLogMsg::info(source(), QStringLiteral("\"%1\" leads out of the run directory").arg(name),
                      QStringLiteral("Give the template a file name below it"));
        reason = QStringLiteral("it leads out of the run directory");
        return false;
    }
    const QString path = file.fileName();
    const int separator = lastSeparator(path);
    // Most folders exist; opening the file is faster than checking for the folder.
    if (separator >= 0 && path[separator] == u'/' && FSafePath::openForWriting(file)) {
        return true;
    }
    QDir().mkpath(path.left(separator));
    const bool isOpen = FSafePath::openForWriting(file);
    reason = isOpen ? QString() : file.errorString();
    return isOpen;
}

/** Updates the values that are file names, which writes those files. */
void updateFileNames(const FValueTable& table) {
    for (const FEntry* entry : table.getFileNameEntries()) {
        const FObject* value = entry->getValue().getObject();
        if (value && value->getPrototype() == FFileName::null()) {
            value->update();
        }
    }
}

}  // namespace

FGenIntWriter* FGenIntWriter::instance() {
    static FGenIntWriter* writer = [] {
        auto* fresh = new FGenIntWriter;
        fresh->setOwnedElsewhere();  // the last handle on it mustn't delete it
        return fresh;
    }();
    return writer;
}

FTemplateOwner* FGenIntWriter::definitionOf(const FExpr<FConfiguration>& configuration) const {
    const QString consequence = QStringLiteral("Exporting command files aborted");
    if (!configuration) {
        FLogMsg::info(getClass(), QStringLiteral("No configuration found"), consequence);
        return nullptr;
    }
    auto* definition = dynamic_cast<FTemplateOwner*>(configuration->getDefinition().getObject());
    if (!definition) {
        FLogMsg::info(getClass(), QStringLiteral("No definition found"), consequence);
    }
    return definition;
}

bool FGenIntWriter::exportCommandFiles(const FExpr<FConfiguration>& configuration, const QString& directory) {
    mFault.clear();
    const FTemplateOwner* definition = definitionOf(configuration);
    if (!definition) {
        return false;
    }
    configuration->update();
    const FValueTable table(*configuration.ptr(), *definition, FValueTable::Use::Export);
    const QList<FExpr<FGenIntFile>> files = definition->getFiles();
    for (const FExpr<FGenIntFile>& file : files) {
        const bool isInput = objectCast<FGenIntCommandFile>(file.ptr()) != nullptr;
        if (isInput && !exportFile(*file.ptr(), directory, table, configuration)) {
            return false;
        }
    }
    updateFileNames(table);
    return true;
}

bool FGenIntWriter::exportFile(const FGenIntFile& file, const QString& directory, const FValueTable& table,
                               const FExpr<FConfiguration>& configuration) const {
    QFile device(directory + file.getFileName());
    QString reason;
    const bool isOpen = openForWriting(device, file.getFileName(), reason);
    bool written = isOpen;
    if (isOpen) {
        FUtf8Output output(device);
        writeTemplate([&output](QStringView piece) { output.write(piece); }, file.getPlainContent(), table,
                      configuration, file.getForceWindowsLineEndings());
        written = output.finish();
        reason = FSavedFile::reasonOf(device);
    }
    if (!written) {
        mFault = QStringLiteral("'%1' (%2)").arg(device.fileName(), reason);
        const QString problem = isOpen ? QStringLiteral("Could not write file %1: %2.").arg(device.fileName(), reason)
                                       : QStringLiteral("Could not open file %1 for writing.").arg(device.fileName());
        FLogMsg::info(source(), problem, QStringLiteral("Writing process aborted."));
    }
    return written;
}

QString FGenIntWriter::previewText(const FGenIntFile& file, const FValueTable& table,
                                   const FExpr<FConfiguration>& configuration) const {
    QString text;
    bool cut = false;
    const auto append = [&text, &cut](QStringView piece) {
        cut = cut || piece.size() > longestPreview - text.size();
        if (!cut) {
            text.append(piece);
        }
    };
    writeTemplate(append, file.getPlainContent(), table, configuration, false);
    if (cut) {
        FLogMsg::info(source(),
                      QStringLiteral("The preview of %1 is longer than %2 characters")
                          .arg(file.getFileName(), QString::number(longestPreview)),
                      QStringLiteral("The rest isn't shown"));
    }
    return text;
}

bool FGenIntWriter::previewCommandFiles(const FExpr<FConfiguration>& configuration, QMap<QString, QString>& texts) {
    const FTemplateOwner* definition = definitionOf(configuration);
    if (!definition) {
        return false;
    }
    const FValueTable table(*configuration.ptr(), *definition, FValueTable::Use::Preview);
    const QList<FExpr<FGenIntFile>> files = definition->getFiles();
    for (const FExpr<FGenIntFile>& file : files) {
        if (const auto* input = objectCast<FGenIntCommandFile>(file.ptr())) {
            texts.insert(input->getFileName(), previewText(*input, table, configuration));
        }
    }
    return true;
}

void FGenIntWriter::getTagNames(const FExpr<FGenIntFile>& file, QStringList& names) {
    if (file) {
        names += FTemplateTags::tagNames(file->getPlainContent());
    }
}

void FGenIntWriter::writeTemplate(const Output& output, const QString& text, const FValueTable& table,
                                  const FExpr<FConfiguration>& configuration, bool forceWindowsLineEndings) const {
    FTemplateSubstitution substitution(
        table.getKeys(), [&table](int row) { return table.textOf(row); }, output);
    substitution.setForceWindowsLineEndings(forceWindowsLineEndings);
    substitution.setObserver([&configuration](const FTagReport& report) {
        if (report.outcome == FTagOutcome::Unknown) {
            FLogMsg::info(source(),
                          QStringLiteral("Entry ") + report.name.toString() +
                              QStringLiteral(" is not part of configuration ") + configuration->getName(),
                          QStringLiteral("Entry skipped"));
        }
    });
    substitution.run(text);
}
