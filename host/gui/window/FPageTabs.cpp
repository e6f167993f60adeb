#include "host/gui/window/FPageTabs.h"

#include "host/core/FChanges.h"
#include "host/core/FManaged.h"
#include "host/gui/base/FClassLook.h"
#include "host/gui/base/FObjectPage.h"
#include "host/gui/base/FObjectPages.h"
#include "host/gui/window/FDocumentTabs.h"

namespace {

QString keyOf(const FManaged* object) {
    return QStringLiteral("object:%1").arg(object->getDbId());
}

}  // namespace

FPageTabs::FPageTabs(FDocumentTabs& documents, FNavigator& navigator) : mDocuments(documents), mNavigator(navigator) {
    const FChanges* changes = FChanges::instance();
    connect(changes, &FChanges::objectLeft, this, &FPageTabs::close);
    connect(changes, &FChanges::objectRenamed, this, &FPageTabs::rename);
}

FObjectPage* FPageTabs::open(FManaged* object) {
    if (!FObjectPages::has(object) || !object->isInModel()) {
        return nullptr;
    }
    if (FObjectPage* inner = showWithinAnother(object)) {
        return inner;
    }
    QWidget* document = mDocuments.open(keyOf(object), object->getName(), FClassLook::iconOf(object),
                                        [this, object] { return FObjectPages::make(*object, mNavigator)->widget(); });
    return dynamic_cast<FObjectPage*>(document);
}

// A template has a page of its own or one in its connector, so that nobody edits it in two places.
FObjectPage* FPageTabs::showWithinAnother(const FManaged* object) {
    for (int index = 0; index < mDocuments.count() && !mDocuments.find(keyOf(object)); ++index) {
        auto* page = dynamic_cast<FObjectPage*>(mDocuments.widget(index));
        if (FObjectPage* inner = page ? page->showPageOf(object) : nullptr) {
            mDocuments.setCurrentIndex(index);
            return inner;
        }
    }
    return nullptr;
}

void FPageTabs::close(const FManaged* object) {
    mDocuments.close(keyOf(object));
}

void FPageTabs::rename(const FManaged* object) {
    mDocuments.setTitle(keyOf(object), object->getName());
}
