#pragma once

#include "host/core/FExport.h"
#include "host/script/FPlace.h"

#include <QStringList>
#include <QXmlStreamReader>

/** Reads the XML half of an exchange file element by element. The first fault ends it. */
class MERIX_EXPORT FLodmXmlReader : public QXmlStreamReader {
 public:
    explicit FLodmXmlReader(const QString& text) : QXmlStreamReader(text) {}

    /** Ends the reading, unless a fault has already. */
    void raise(const QString& message);
    /** Goes to the root; false if there is none. */
    bool nextRoot();
    /** Goes to the next element inside the one at hand; false at its end, and if there is text in it. */
    bool nextChild();
    /** The text of the element at hand, which can't have others inside, with its escapes resolved. */
    QString plainText();

    /** The text of an attribute of the element at hand, with its escapes resolved. */
    QString attribute(const char* attributeName, const QString& byDefault = QString()) const;
    /** The same as a number; raises a fault if it is none. */
    int wholeAttribute(const char* attributeName, const QString& byDefault = QString());
    /** Raises a fault if the element at hand has an attribute other than those. */
    void checkAttributes(const QStringList& known);

    bool isElement(const char* elementName) const;
    /** The element at hand as messages name it. */
    QString tag() const;
    /** Where the reader is: in general just behind the element at hand. */
    FPlace place() const;
};
