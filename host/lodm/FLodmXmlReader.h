#pragma once

#include "host/core/FExport.h"
#include "host/script/FPlace.h"

#include <QStringList>
#include <QXmlStreamReader>

/** Reads the XML half of an exchange file element by element, up to the first error. */
class MERIX_EXPORT FLodmXmlReader : public QXmlStreamReader {
 public:
    /** @param firstLine  the line of the file where the text begins */
    explicit FLodmXmlReader(const QString& text, int firstLine = 1) : QXmlStreamReader(text), mFirstLine(firstLine) {}

    /** Raises an error, which ends the reading. Later errors are ignored. */
    void raise(const QString& message);
    /** Moves to the root; false if there is none. */
    bool nextRoot();
    /** Moves to the next child of the present element; false at its end, and, with an error, if it contains text. */
    bool nextChild();
    /** The text of the present element, which must not have children, with its escapes resolved. */
    QString plainText();

    /** The text of an attribute of the present element, with its escapes resolved. */
    QString attribute(const char* attributeName, const QString& byDefault = QString()) const;
    /** The same as a number; raises an error if it isn't a whole number. */
    int wholeAttribute(const char* attributeName, const QString& byDefault = QString());
    /** Raises an error if the present element has an attribute that isn't in the list. */
    void checkAttributes(const QStringList& known);

    bool isElement(const char* elementName) const;
    /** The name of the present element in messages. */
    QString tag() const;
    /** The place of the reader, usually just after the tag of the present element. */
    FPlace place() const;

 private:
    int mFirstLine;
};
