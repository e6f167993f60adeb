#include "host/lodm/FGeometryContent.h"

#include "host/core/FFile.h"
#include "host/core/FNumberText.h"
#include "host/core/FObjectList.h"
#include "host/design/FCurve.h"
#include "host/design/FEntityGroup.h"
#include "host/design/FFeatureDefinitionBase.h"
#include "host/design/FFeatureMember.h"
#include "host/design/FGeometryExport.h"
#include "host/design/FPoint.h"
#include "host/design/FTriangles.h"
#include "host/run/FFileDigest.h"
#include "host/run/FPathManager.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

namespace {

constexpr qint64 longestFile = qint64{1} << 30;

/** Of a curve or triangles; a relative name starts at the folder of the project. */
QString pathOf(const FGeometryFile& geometry) {
    return geometry.getFileName().isEmpty() ? QString()
                                            : QDir(FPathManager::getProjectDir()).filePath(geometry.getFileName());
}

QString lineOf(const FPoint& point) {
    return QStringLiteral("%1,%2,%3\n")
        .arg(numberText(point.getX()), numberText(point.getY()), numberText(point.getZ()));
}

/** A binary file has a header, the number of its triangles, and as many records. */
bool isBinary(const QByteArray& triangles) {
    constexpr int header = 80;
    constexpr int start = 84;
    constexpr qint64 record = 50;
    return triangles.size() >= start &&
           triangles.size() == start + record * qFromLittleEndian<quint32>(triangles.constData() + header);
}

QString nameOf(const FObject& object) {
    const auto* managed = dynamic_cast<const FManaged*>(&object);
    return QStringLiteral("%1 (%2)").arg(managed ? managed->getName() : object.toString(), object.getClass());
}

}  // namespace

FGeometryContent::FGeometryContent(const FGeometryExport& geometry) : mFileName(geometry.getFileName()) {
    for (const FExpr<FObject>& object : geometry.getExportedObjects()) {
        add(object.getObject());
    }
}

void FGeometryContent::add(const FObject* object) {
    const auto addAll = [this](const auto& handles) {
        for (const auto& handle : handles) {
            add(handle.getObject());
        }
    };
    if (const auto* list = dynamic_cast<const FObjectList*>(object)) {
        addAll(list->getObjects());
    } else if (const auto* group = dynamic_cast<const FEntityGroup*>(object)) {
        addAll(group->getEntities());
    } else if (const auto* feature = dynamic_cast<const FFeatureDefinitionBase*>(object)) {
        addAll(feature->getEntities());
    } else if (const auto* member = dynamic_cast<const FFeatureMember*>(object)) {
        add(member->getEntity());
    } else if (object) {
        mObjects.push_back(object);
    }
}

bool FGeometryContent::isTriangles() const {
    return QFileInfo(mFileName).suffix().compare(QLatin1String("stl"), Qt::CaseInsensitive) == 0;
}

QString FGeometryContent::faultOf(const FObject& object) const {
    const auto* file = dynamic_cast<const FGeometryFile*>(&object);
    const bool isOfCsv = dynamic_cast<const FPoint*>(&object) || dynamic_cast<const FCurve*>(&object);
    const bool fits = isTriangles() ? dynamic_cast<const FTriangles*>(&object) != nullptr : isOfCsv;
    if (!fits) {
        return QStringLiteral(
                   "%1 can't be written to \"%2\": a csv file takes points and curves, an stl file triangles")
            .arg(nameOf(object), mFileName);
    }
    if (file && pathOf(*file).isEmpty()) {
        return QStringLiteral("%1 has no file name").arg(nameOf(object));
    }
    return file && !QFileInfo(pathOf(*file)).isFile()
               ? QStringLiteral("the file of %1 doesn't exist: %2").arg(nameOf(object), pathOf(*file))
               : QString();
}

QString FGeometryContent::fault() const {
    if (!isTriangles() && QFileInfo(mFileName).suffix().compare(QLatin1String("csv"), Qt::CaseInsensitive) != 0) {
        return QStringLiteral(
                   "the name of the exported file, \"%1\", ends neither in .csv, for points and curves, nor "
                   "in .stl, for triangles")
            .arg(mFileName);
    }
    for (const FObject* object : mObjects) {
        if (const QString reason = faultOf(*object); !reason.isEmpty()) {
            return reason;
        }
    }
    return mObjects.empty() ? QStringLiteral("the export \"%1\" has no geometry").arg(mFileName) : QString();
}

QString FGeometryContent::digest() const {
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (const FObject* object : mObjects) {
        const auto* point = dynamic_cast<const FPoint*>(object);
        const auto* file = dynamic_cast<const FGeometryFile*>(object);
        const QString text = point ? lineOf(*point) : file ? FFileDigest::of(pathOf(*file)) : QString();
        hash.addData(text.toUtf8() + '\n');
    }
    return QString::fromLatin1(hash.result().toHex());
}

QString FGeometryContent::read(QByteArray& bytes) const {
    if (const QString reason = fault(); !reason.isEmpty()) {
        return reason;
    }
    for (const FObject* object : mObjects) {
        if (!bytes.isEmpty() && !bytes.endsWith('\n')) {
            bytes += '\n';
        }
        if (const auto* point = dynamic_cast<const FPoint*>(object)) {
            bytes += lineOf(*point).toUtf8();
            continue;
        }
        QFile file(pathOf(*dynamic_cast<const FGeometryFile*>(object)));
        QString reason = FFile::openOrdinary(file);
        if (reason.isEmpty() && file.size() > longestFile - bytes.size()) {
            reason = QStringLiteral("an export has at most %1 MiB").arg(longestFile >> 20);
        }
        if (!reason.isEmpty()) {
            return QStringLiteral("can't read \"%1\": %2").arg(file.fileName(), reason);
        }
        const QByteArray content = FFile::readAtMost(file, longestFile - bytes.size());
        if (isTriangles() && mObjects.size() > 1 && isBinary(content)) {
            return QStringLiteral("\"%1\" is a binary file, and can only be exported alone").arg(file.fileName());
        }
        bytes += content;
    }
    return {};
}
