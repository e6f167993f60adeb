#include "host/core/FIni.h"

#include <QStandardPaths>

namespace {

QString& chosenFile() {
    static QString path;
    return path;
}

QString settingsFile() {
    if (!chosenFile().isEmpty()) {
        return chosenFile();
    }
    const QString named = qEnvironmentVariable("MERIX_SETTINGS");
    return named.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                                 QStringLiteral("/merix/merix.ini")
                           : named;
}

}  // namespace

FIni::FIni() : QSettings(settingsFile(), QSettings::IniFormat) {}

void FIni::setFile(const QString& path) {
    chosenFile() = path;
}

FExpr<FInteger> FIni::getSetting(const QString& key) {
    bool isWhole = false;
    // As a text, since a QVariant would round a number with a fraction.
    const int number = FIni().value(key).toString().toInt(&isWhole);
    return isWhole ? FExpr<FInteger>(new FInteger(number)) : FExpr<FInteger>();
}
