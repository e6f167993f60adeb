#include "host/gui/base/FGuiSettings.h"

#include "host/core/FIni.h"

namespace {

const char* const geometryKey = "window/geometry";
const char* const stateKey = "window/state";
const char* const layoutKey = "window/layout/%1";
const char* const recentKey = "window/recentProjects";
const char* const appearanceKey = "window/appearance";
const char* const userLevelKey = "window/userLevel";

QVariant get(const QString& key, const QVariant& byDefault = {}) {
    return FIni().value(key, byDefault);
}

void set(const QString& key, const QVariant& value) {
    FIni().setValue(key, value);
}

}  // namespace

QByteArray FGuiSettings::getGeometry() {
    return get(geometryKey).toByteArray();
}

void FGuiSettings::setGeometry(const QByteArray& geometry) {
    set(geometryKey, geometry);
}

QByteArray FGuiSettings::getState() {
    return get(stateKey).toByteArray();
}

void FGuiSettings::setState(const QByteArray& state) {
    set(stateKey, state);
}

QByteArray FGuiSettings::getLayout(const QString& name) {
    return get(QString::fromLatin1(layoutKey).arg(name)).toByteArray();
}

void FGuiSettings::setLayout(const QString& name, const QByteArray& layout) {
    set(QString::fromLatin1(layoutKey).arg(name), layout);
}

QStringList FGuiSettings::getRecentProjects() {
    return get(recentKey).toStringList();
}

void FGuiSettings::addRecentProject(const QString& path) {
    QStringList recent = getRecentProjects();
    recent.removeAll(path);
    recent.prepend(path);
    set(recentKey, QStringList(recent.mid(0, mostRecentProjects)));
}

QString FGuiSettings::getAppearance() {
    return get(appearanceKey, QStringLiteral("desktop")).toString();
}

void FGuiSettings::setAppearance(const QString& appearance) {
    set(appearanceKey, appearance);
}

unsigned int FGuiSettings::getUserLevel() {
    constexpr unsigned int all = 100;
    return get(userLevelKey, all).toUInt();
}
