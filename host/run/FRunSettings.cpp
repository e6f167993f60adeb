#include "host/run/FRunSettings.h"

#include "host/core/FIni.h"

namespace {

const char* const suppliersFirstKey = "run/suppliersFirst";

}  // namespace

bool FRunSettings::areSuppliersFirst() {
    return FIni().value(QString::fromLatin1(suppliersFirstKey), 1).toInt() != 0;
}

void FRunSettings::setSuppliersFirst(bool areFirst) {
    FIni().setValue(QString::fromLatin1(suppliersFirstKey), areFirst ? 1 : 0);
}
