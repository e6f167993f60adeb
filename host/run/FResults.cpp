#include "host/run/FResults.h"

FClassData FResults::mClass("FResults", &FManaged::mClass);

void FResults::init(const FResults* other) {
    if (other) {
        FManaged::init(other);
        mResultPath = other->mResultPath;
    }
}
