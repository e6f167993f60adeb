#include "host/lodm/FLodmPath.h"

#include "host/core/FFile.h"
#include "host/script/FCmdInput.h"

QString lodmPath(const QString& fileName) {
    const QString path = FFile::resolveEnv(fileName);
    const FCmdInput* script = FCmdInput::current();
    return script && !path.isEmpty() ? script->resolvePath(path) : path;
}
