#include "host/script/FGlobalCommands.h"

#include "host/core/FFile.h"
#include "host/core/FHistory.h"
#include "host/core/FLogMsg.h"
#include "host/core/FObjectManager.h"
#include "host/core/FObjectName.h"
#include "host/core/FStandardOutput.h"
#include "host/script/FCmdInput.h"
#include "host/script/FCmdManager.h"
#include "host/script/FCmdTable.h"
#include "host/script/FMemberCmd.h"
#include "host/script/FProject.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>

namespace {

/** Exit code of a script if a file can't be read or written. */
constexpr int fileError = 3;

/** Bytes of a file that a script reads. */
constexpr qint64 largestFile = 500'000'000;

QString plainText(const FExprBase& handle) {
    const FObject* value = valueObject(handle);
    const auto* basic = dynamic_cast<const FBasicType*>(value);
    return basic ? basic->toPlainString() : value ? value->toString() : QStringLiteral("NULL");
}

void print(const std::vector<FExprBase>& values) {
    QStringList texts;
    for (const FExprBase& value : values) {
        texts.append(plainText(value));
    }
    FCmdInput* script = FCmdInput::current();
    if (!FStandardOutput::write(texts.join(QLatin1Char(' ')) + QLatin1Char('\n')) && script) {
        script->requestExit(fileError);
    }
}

QString resolve(const QString& path) {
    const FCmdInput* script = FCmdInput::current();
    return script ? script->resolvePath(path) : path;
}

FExpr<FObject> readText(const QString& path) {
    QFile file(resolve(path));
    QString text;
    if (const QString fault = FFile::readText(file, largestFile, text); !fault.isEmpty()) {
        FCmd::warnNow(QStringLiteral("readText"),
                      QStringLiteral("readText: can't read \"%1\": %2").arg(file.fileName(), fault));
        return {};
    }
    return FExpr<FObject>(new FString(text));
}

bool include(const QString& path) {
    FCmdInput* script = FCmdInput::current();
    return script && script->include(path);
}

void exitScript(int code) {
    if (FCmdInput* script = FCmdInput::current()) {
        // The system keeps eight bits of it: without the check, 256 would say that all went well.
        script->requestExit(code >= 0 && code <= 255 ? code : 1);
    }
}

FExpr<FObject> getAttribute(const FExpr<FObject>& object, const QString& name) {
    FObject* receiver = object.getObject();
    const FObjectList* list = receiver->castToObjectList();
    const FObject* type = list ? list->getElementType() : receiver;
    for (const FObject* attribute : FCmdManager::instance()->getAttributesByReceiver(type)) {
        const auto* prototype = dynamic_cast<const FAttribCmd*>(attribute);
        if (prototype && prototype->getName() == name) {
            FExprBase value;
            auto* command = static_cast<FAttribCmd*>(prototype->clone());
            const FExprBase keep(command);
            command->setReceiver(object);
            command->getAttrValue(value);
            return FExpr<FObject>(value);
        }
    }
    FCmd::warnNow(
        QStringLiteral("getAttribute"),
        QStringLiteral("getAttribute: ") + FCmdManager::instance()->unknownMember(type->getClassData(), name));
    return {};
}

FExpr<FManaged> renameObject(const FExpr<FManaged>& object, const QString& name) {
    FManaged* managed = object.ptr();
    const QString before = managed->getName();
    managed->setName(name);
    if (managed->getName() != name) {
        FCmd::warnNow(managed->getClass(),
                      QStringLiteral("rename: \"%1\" is %2")
                          .arg(name, name.isEmpty()            ? QStringLiteral("no name")
                                     : legalName(name) != name ? QStringLiteral("not a legal name")
                                                               : QStringLiteral("taken")),
                      QStringLiteral("\"%1\" is now \"%2\"").arg(before, managed->getName()));
    }
    return object;
}

bool exists(const QString& name) {
    return FObjectManager::instance()->find(name) != nullptr;
}

bool destroyObject(const FExpr<FManaged>& object) {
    return FManaged::destroy(object.ptr(), true);
}

FExpr<FObject> getObjects(const QString& className) {
    const FObject* prototype = FObject::getPrototype(className);
    auto* list = new FObjectList(prototype);
    FExpr<FObject> handle(list);
    if (!prototype) {
        FLogMsg::warning(QStringLiteral("getObjects"), QStringLiteral("there is no class \"%1\"").arg(className));
        return handle;
    }
    for (FManaged* object : FObjectManager::instance()->getManaged(prototype)) {
        list->add(FExpr<FObject>(object));
    }
    return handle;
}

FExpr<FObject> makeFileName(const QString& path) {
    return FExpr<FObject>(new FFileName(path));
}

bool newProject() {
    return FProject::instance()->create();
}

bool openProject(const QString& path, bool recover) {
    // A file of exactly that name is meant first.
    const QString exact = resolve(path);
    const bool isThere = QFileInfo(exact).isFile();
    return FProject::instance()->open(isThere ? exact : resolve(FProject::withEnding(path)), recover);
}

bool saveProject(const QString& path) {
    return FProject::instance()->save(path.isEmpty() ? path : resolve(FProject::withEnding(path)));
}

void projectCommands(FCmdTable& table) {
    table.global("newProject", &newProject).unwrapped().outcome();
    table.global("openProject", &openProject, {"file", "recover=false"}).unwrapped().outcome();
    table.global("saveProject", &saveProject, {"file=\"\""}).unwrapped().outcome();
}

void commands(FCmdTable& table) {
    table.global("print", &print, {"values"});
    table.global("include", &include, {"file"}).unwrapped();
    table.global("readText", &readText, {"file"}).returns(FCmdTypeOf<QString>::type()).readsFiles();
    table.global("exit", &exitScript, {"code=0"});
    table
        .global(
            "undo", +[] { return FHistory::instance()->undo(); })
        .unwrapped();
    table
        .global(
            "redo", +[] { return FHistory::instance()->redo(); })
        .unwrapped();
    table.global("exists", &exists, {"name"}).query();
    table.global("destroy", &destroyObject, {"object"});
    table.global("rename", &renameObject, {"object", "name"});
    table.global("getObjects", &getObjects, {"class"}).returns(FCmdTypeOf<QList<FExpr<FObject>>>::type()).query();
    table.global("getAttribute", &getAttribute, {"object", "attribute"}).query();
    projectCommands(table);
    table.global("fileName", &makeFileName, {"path"}).returns(FCmdTypeOf<FExpr<FFileName>>::type()).query();
}

}  // namespace

FClassData FGlobalCommands::mClass("FGlobalCommands", &FObject::mClass, &commands);
