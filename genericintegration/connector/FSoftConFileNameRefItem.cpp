#include "genericintegration/connector/FSoftConFileNameRefItem.h"

#include <QGraphicsSimpleTextItem>

FClassData FSoftConFileNameRefItem::mClass("FSoftConFileNameRefItem", &FSoftConFileNameItem::mClass);

void FSoftConFileNameRefItem::updateItem() {
    if (getScene() && entry()) {
        const QString text = shownText();
        mLabelItem->setText(text);
        paintIcon(QStringLiteral(":/softConFileNameRef_"), text, FItemIcon::dark);
        FSoftConEntryItem::updateItem();
    }
}
