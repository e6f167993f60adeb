#include "host/lodm/FConfigurationCustomBase.h"

#include "host/core/FLogMsg.h"
#include "host/design/FGeometryExport.h"
#include "host/design/FInputFile.h"
#include "host/lodm/FGeometryContent.h"
#include "host/lodm/FInputTargets.h"
#include "host/run/FPathManager.h"
#include "host/run/FRunFolderFile.h"

FClassData FConfigurationCustomBase::mClass("FConfigurationCustomBase", &FConfiguration::mClass);

namespace {

/** Reports why a file of an entry isn't in the folder of the run. Returns false. */
bool report(const FConfiguration& configuration, const FEntry& entry, const QString& reason) {
    FLogMsg::error(configuration.getName(), QStringLiteral("entry \"%1\": %2").arg(entry.getFullName(), reason),
                   QStringLiteral("The input of the run isn't complete"));
    return false;
}

/** Calls `bring` for each entry with a value of class T, until one returns a reason for a failure. */
template <class T, class Bring>
bool bringAll(const FConfiguration& configuration, Bring bring) {
    for (const FExpr<FEntryBase>& handle : configuration.getEntryMap()) {
        const auto* entry = static_cast<const FEntry*>(handle.ptr());
        const auto* value = dynamic_cast<const T*>(entry->getValueObject());
        const QString reason = value ? bring(*value, *entry) : QString();
        if (!reason.isEmpty()) {
            return report(configuration, *entry, reason);
        }
    }
    return true;
}

}  // namespace

QList<FExpr<FResultsFileName>> FConfigurationCustomBase::getResultsFileNames() const {
    QList<FExpr<FResultsFileName>> names;
    for (const FExpr<FEntry>& entry : getEntry(FResultsFileName::null(), true)) {
        const FExpr<FResultsFileName> name(entry->getValueObject());
        if (name) {
            names.append(name);
        }
    }
    return names;
}

// One of two files of the same name would be lost without a word.
bool FConfigurationCustomBase::areFilesApart() const {
    FInputTargets files;
    return bringAll<FObject>(*this, [&files](const FObject& value, const FEntry& entry) {
        const QString name = FInputTargets::nameOf(value);
        const QString other = name.isEmpty()
                                  ? QString()
                                  : files.addValue(value, QStringLiteral("the entry \"%1\"").arg(entry.getFullName()));
        return other.isEmpty() ? QString()
                               : QStringLiteral("its file would replace that of %1, \"%2\"").arg(other, name);
    });
}

bool FConfigurationCustomBase::copyInputFiles(const QString& folder) const {
    return areFilesApart() && bringAll<FInputFile>(*this, [&folder](const FInputFile& file, const FEntry&) {
               return FRunFolderFile(folder, file.toPlainString()).copyFrom(file.getFileNameText());
           });
}

bool FConfigurationCustomBase::doExports() const {
    const QString folder = FPathManager::instance()->getInputDir({}, {});
    return bringAll<FGeometryExport>(*this, [&folder](const FGeometryExport& geometry, const FEntry&) {
        QByteArray bytes;
        const QString reason = FGeometryContent(geometry).read(bytes);
        return reason.isEmpty() ? FRunFolderFile(folder, geometry.getFileName()).write(bytes) : reason;
    });
}
