#include "host/lodm/FInputTargets.h"

#include "host/core/FFile.h"
#include "host/design/FGeometryExport.h"
#include "host/design/FInputFile.h"
#include "host/run/FPathManager.h"

#include <QDir>

namespace {

/** The same for all spellings of a path. One that begins with a slash is relative to the folder, too. */
QString pathOf(const QString& name) {
    return QDir::cleanPath(QStringLiteral("./") + name);
}

}  // namespace

QString FInputTargets::nameOf(const FObject& value) {
    if (const auto* input = dynamic_cast<const FInputFile*>(&value)) {
        return input->getFileNameText().isEmpty() ? QString() : input->toPlainString();
    }
    const auto* geometry = dynamic_cast<const FGeometryExport*>(&value);
    return geometry ? geometry->getFileName() : QString();
}

QString FInputTargets::add(const QString& name, const QString& writer, const QString& source) {
    if (name.isEmpty()) {
        return {};
    }
    const auto known = mWriters.constFind(pathOf(name));
    if (known == mWriters.constEnd()) {
        mWriters.insert(pathOf(name), {writer, source});
        return {};
    }
    // Two entries may name the same file.
    return source.isEmpty() || source != known->source ? known->text : QString();
}

QString FInputTargets::addValue(const FObject& value, const QString& writer) {
    const auto* input = dynamic_cast<const FInputFile*>(&value);
    const QString source =
        input ? FFile::realPath(QDir(FPathManager::getProjectDir()).filePath(input->getFileNameText())) : QString();
    return add(nameOf(value), writer, source);
}

QString FInputTargets::writerOf(const QString& name) const {
    return mWriters.value(pathOf(name)).text;
}
