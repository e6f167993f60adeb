#include "host/run/FResultsOutOfDateBlocker.h"

int FResultsOutOfDateBlocker::mCount = 0;
