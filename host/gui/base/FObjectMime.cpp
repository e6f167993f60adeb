#include "host/gui/base/FObjectMime.h"

#include "host/core/FManaged.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FObjectManager.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QMimeData>

QMimeData* FObjectMime::encode(const QList<FManaged*>& objects) {
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << static_cast<qint64>(QCoreApplication::applicationPid());
    QStringList names;
    for (const FManaged* object : objects) {
        stream << object->getDbId();
        names.append(object->getName());
    }
    auto* data = new QMimeData;
    data->setData(FMerixCtrl::getFObjectMimeType(), bytes);
    data->setText(names.join(QLatin1Char('\n')));
    return data;
}

QList<FManaged*> FObjectMime::decode(const QMimeData* data) {
    QDataStream stream(data->data(FMerixCtrl::getFObjectMimeType()));
    qint64 process = 0;
    stream >> process;
    QList<FManaged*> objects;
    if (stream.status() != QDataStream::Ok || process != QCoreApplication::applicationPid()) {
        return objects;
    }
    while (!stream.atEnd()) {
        int id = 0;
        stream >> id;
        FManaged* object = FObjectManager::instance()->find(id);
        if (stream.status() == QDataStream::Ok && object && !objects.contains(object)) {
            objects.append(object);
        }
    }
    return objects;
}
