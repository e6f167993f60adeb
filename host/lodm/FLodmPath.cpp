#include "host/lodm/FLodmPath.h"

#include "host/script/FCmdInput.h"

QString lodmPath(const QString& fileName) {
    const FCmdInput* script = FCmdInput::current();
    return script && !fileName.isEmpty() ? script->resolvePath(fileName) : fileName;
}
