#include "genericintegration/editors/FKeptSplitter.h"

#include "host/core/FIni.h"

FKeptSplitter::FKeptSplitter(const char* key, const char* usual, QWidget* parent)
    : QSplitter(Qt::Horizontal, parent), mKey(QString::fromLatin1(key)), mUsual(usual) {
    setChildrenCollapsible(false);
}

void FKeptSplitter::restore() {
    const QByteArray kept = FIni().value(mKey).toString().toLatin1();
    restoreState(QByteArray::fromBase64(kept.isEmpty() ? mUsual : kept));
}

void FKeptSplitter::keep() const {
    FIni().setValue(mKey, QString::fromLatin1(saveState().toBase64()));
}
