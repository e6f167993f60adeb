#pragma once

#include <QtGlobal>

/** How many random cases a test tries: `usual`, or as many as MERIX_RANDOM_CASES says, to look for what is rarer. */
inline int randomCases(int usual) {
    bool isSet = false;
    const int count = qEnvironmentVariableIntValue("MERIX_RANDOM_CASES", &isSet);
    return isSet ? count : usual;
}
