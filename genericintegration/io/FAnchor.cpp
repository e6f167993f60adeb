#include "genericintegration/io/FAnchor.h"

int getAnchorPosition(const FAnchor& anchor, const QString& text) {
    if (anchor.text.isEmpty()) {
        return -1;
    }
    return anchor.occurrence == FAnchorOccurrence::First ? text.indexOf(anchor.text, 0, Qt::CaseInsensitive)
                                                         : text.lastIndexOf(anchor.text, -1, Qt::CaseInsensitive);
}
