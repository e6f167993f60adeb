#include "host/gui/base/FNavigator.h"

#include "host/core/FObjectManager.h"

#include <QFileInfo>
#include <QStringList>

namespace {

/** Takes a number and the colon before it from the end of a text; 0 if there is none. */
int takeNumber(QString& text) {
    const int colon = text.lastIndexOf(QLatin1Char(':'));
    bool isNumber = false;
    const int number = colon < 0 ? 0 : text.midRef(colon + 1).toInt(&isNumber);
    if (!isNumber) {
        return 0;
    }
    text.truncate(colon);
    return number;
}

}  // namespace

void FNavigator::showPlace(const QString& place, const QString& object) {
    QString name = place;
    int column = takeNumber(name);
    int line = takeNumber(name);
    if (line == 0) {
        std::swap(line, column);
    }
    FManaged* managed = FObjectManager::instance()->find(name);
    if (!managed && !QFileInfo(name).isFile()) {
        managed = FObjectManager::instance()->find(object);
    }
    if (managed) {
        showTemplate(managed, line, column);
    } else if (!name.isEmpty()) {
        showFile({name, line, column});
    }
}
