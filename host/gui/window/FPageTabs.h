#pragma once

#include "host/core/FExport.h"

#include <QObject>

class FDocumentTabs;
class FManaged;
class FNavigator;
class FObjectPage;

/** The pages of objects among the documents. Each object has one at most, which goes with it. */
class MERIX_EXPORT FPageTabs : public QObject {
    Q_OBJECT

 public:
    /** Both outlive the object. */
    FPageTabs(FDocumentTabs& documents, FNavigator& navigator);

    /** Shows the page of an object; null if its class has none. */
    FObjectPage* open(FManaged* object);

 private:
    FObjectPage* showWithinAnother(const FManaged* object);
    void close(const FManaged* object);
    void rename(const FManaged* object);

    FDocumentTabs& mDocuments;
    FNavigator& mNavigator;
};
