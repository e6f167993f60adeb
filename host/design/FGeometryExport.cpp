#include "host/design/FGeometryExport.h"

#include "host/core/FQuotedText.h"
#include "host/design/FEntryValue.h"
#include "host/script/FCmd.h"
#include "host/script/FCmdTable.h"

#include <QStringList>

namespace {

FExpr<FGeometryExport> makeExport(const QString& fileName, int kind, const FExpr<FObject>& source) {
    if (kind < 0 || kind > 2) {
        FCmd::warnNow(FGeometryExport::mClass.getName(),
                      QStringLiteral("the kind of an export is 0, 1 or 2, and not %1").arg(kind));
        return {};
    }
    const FExpr<FGeometryExport> made(new FGeometryExport(fileName, static_cast<FGeometryExport::Kind>(kind)));
    FObject* object = source.getObject();
    FObjectList* list = object ? object->castToObjectList() : nullptr;
    if (list) {
        made->setGeometryObjects(FExpr<FObjectList>(list));
    } else if (object != FNull::null()) {
        made->setFeatureDefinition(source);
    }
    return made;
}

void commands(FCmdTable& table) {
    table.global("geometryExport", &makeExport, {"fileName", "kind=0", "source=NULL"}).query();
}

/** A change of an export: its entry becomes part of the step, and what depends on it is marked at the end. */
class Change {
 public:
    explicit Change(const FGeometryExport& changed) : mExport(changed) { entryValueChanges(changed); }
    ~Change() { mExport.setOutOfDate(true); }
    Change(const Change&) = delete;
    Change& operator=(const Change&) = delete;

 private:
    const FGeometryExport& mExport;
};

}  // namespace

FClassData FGeometryExport::mClass("FGeometryExport", &FObject::mClass, &commands, &FGeometryExport::fields);

FGeometryExport::FGeometryExport(const QString& fileName, Kind kind) : mFileName(fileName), mKind(kind) {}

FGeometryExport::FGeometryExport(const FGeometryExport& other)
    : FClass(other), mFileName(other.mFileName), mKind(other.mKind) {
    for (const FExpr<FObject>& object : other.mObjects) {
        mObjects.append(object);
        object.registerClient(this);
    }
    setFeatureDefinition(other.mSource);
}

std::vector<std::unique_ptr<FStateField>> FGeometryExport::fields() {
    return FStateFields<FGeometryExport>()
        .member(&FGeometryExport::mFileName)
        .member(&FGeometryExport::mKind)
        .linked(&FGeometryExport::mObjects)
        .linked(&FGeometryExport::mSource)
        .take();
}

bool FGeometryExport::refuse(const FExprBase& object) const {
    FCmd::warnNow(
        getClass(),
        QStringLiteral("the export \"%1\" would depend on itself with %2").arg(mFileName, object.toHistoryString()),
        QStringLiteral("It isn't exported"));
    return false;
}

void FGeometryExport::setFileName(const QString& fileName) {
    const Change change(*this);
    mFileName = fileName;
}

void FGeometryExport::setKind(Kind kind) {
    const Change change(*this);
    mKind = kind;
}

bool FGeometryExport::setGeometryObjects(const FExpr<FObjectList>& objects) {
    const Change change(*this);
    for (const FExpr<FObject>& object : mObjects) {
        object.unregisterClient(this);
    }
    mObjects.clear();
    return addGeometryObjects(objects);
}

bool FGeometryExport::addGeometryObjects(const FExpr<FObjectList>& objects) {
    const Change change(*this);
    bool isTaken = true;
    for (const FExpr<FObject>& object : objects ? objects->getObjects() : std::vector<FExpr<FObject>>()) {
        if (!object || mObjects.contains(object)) {
            continue;
        }
        if (object.registerClient(this)) {
            mObjects.append(object);
        } else {
            isTaken = refuse(object);
        }
    }
    return isTaken;
}

bool FGeometryExport::setFeatureDefinition(const FExpr<FObject>& feature) {
    const Change change(*this);
    return mSource.assignFor(this, feature) || refuse(feature);
}

QList<FExpr<FObject>> FGeometryExport::getExportedObjects() const {
    return mKind == Kind::Geometry ? mObjects : QList<FExpr<FObject>>{mSource};
}

QString FGeometryExport::toExpressionString() const {
    QStringList names;
    for (const FExpr<FObject>& object : mObjects) {
        names.append(object.toHistoryString());
    }
    const QString list = QLatin1Char('[') + names.join(QLatin1Char(',')) + QLatin1Char(']');
    const QString source = mKind == Kind::Geometry ? list : mSource.toHistoryString();
    return QStringLiteral("geometryExport(%1,%2,%3)")
        .arg(quoteText(mFileName), QString::number(static_cast<int>(mKind)), source);
}
