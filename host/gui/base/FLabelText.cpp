#include "host/gui/base/FLabelText.h"

QString FLabelText::literal(QString text) {
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}
