#include "host/run/FResults.h"

#include "host/run/FPathManager.h"

FClassData FResults::mClass("FResults", &FManaged::mClass);

void FResults::init() {
    mResultPath = FPathManager::instance()->getRunFolder();
}

void FResults::init(const FResults* other) {
    if (other) {
        FManaged::init(other);
        mResultPath = other->mResultPath;
    }
}
