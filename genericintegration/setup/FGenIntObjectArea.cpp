#include "genericintegration/setup/FGenIntObjectArea.h"

#include "genericintegration/setup/FDefinitionGenInt.h"
#include "host/design/FEntryDef.h"
#include "host/design/FGeometryExport.h"
#include "host/lodm/FLodmDefinitionParser.h"
#include "host/lodm/FLodmLeftOut.h"

#include <QTextStream>

#include <algorithm>

namespace {

using Objects = QSet<FExpr<FManaged>>;

/** The objects in the order of their ids; destroyed ones are skipped. */
std::vector<const FManaged*> inOrder(const Objects& objects) {
    std::vector<const FManaged*> ordered;
    for (const FExpr<FManaged>& object : objects) {
        if (object) {
            ordered.push_back(object.ptr());
        }
    }
    std::sort(ordered.begin(), ordered.end(),
              [](const FManaged* a, const FManaged* b) { return a->getDbId() < b->getDbId(); });
    return ordered;
}

Objects filesOf(const FDefinitionGenInt& definition) {
    Objects files;
    for (const FExpr<FGenIntFile>& file : definition.getFiles()) {
        files.insert(FExpr<FManaged>(file));
    }
    return files;
}

QString nameOf(const FExpr<FGenIntFile>& file) {
    return file ? file->getName() : QStringLiteral("NULL");
}

/** The objects without which the entries could not export in another project. */
Objects exportedObjects(const FDefinitionGenInt& definition) {
    Objects objects;
    for (const FExpr<FEntryBase>& entry : definition.getEntryMap()) {
        const auto* geometry = dynamic_cast<const FGeometryExport*>(
            static_cast<const FEntryDef*>(entry.ptr())->getDefaultValue().getStored());
        const bool isFeature = geometry && geometry->getKind() == FGeometryExport::Kind::Feature;
        const FExpr<FManaged> source(isFeature ? FExprBase(geometry->getSourceObject()) : FExprBase());
        if (source) {
            objects.insert(source);
        }
    }
    return objects;
}

}  // namespace

bool FGenIntObjectArea::write(QIODevice* device, const FDefinitionGenInt& definition, Objects objects,
                              Objects& inFile) {
    // Not directly to the device, since a stream doesn't notice a short write.
    QString text;
    QTextStream stream(&text);
    stream << '\n' << FLodmDefinitionParser::smObjectArea << '\n';
    for (const FExpr<FGenIntFile>& file : definition.getFiles()) {
        if (file) {
            file->saveScopeManner(stream, 0, false, false);
        }
    }
    objects += exportedObjects(definition) - inFile;
    for (const FManaged* object : inOrder(objects)) {
        object->saveScopeManner(stream, 0, false, false);
    }
    inFile += objects + filesOf(definition) + Objects{FExpr<FManaged>(&definition)};
    warnOfLeftOut(definition, objects + filesOf(definition), inFile);
    stream << "curFile : " << nameOf(definition.getCurFile()) << '\n';
    stream << "lastFile : " << nameOf(definition.getLastFile()) << '\n';
    stream.flush();
    const QByteArray bytes = text.toUtf8();
    return device->write(bytes) == bytes.size();
}
