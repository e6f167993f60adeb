#include "host/lodm/FLodmXmlReader.h"

#include "host/lodm/FLodmText.h"
#include "host/script/FCmdManager.h"

void FLodmXmlReader::raise(const QString& message) {
    if (!hasError()) {
        raiseError(message);
    }
}

bool FLodmXmlReader::nextRoot() {
    while (!atEnd()) {
        if (readNext() == StartElement) {
            return true;
        }
    }
    return false;
}

bool FLodmXmlReader::nextChild() {
    while (!atEnd()) {
        const TokenType token = readNext();
        if (token == StartElement) {
            return true;
        }
        if (token == EndElement) {
            return false;
        }
        if (token == Characters && !isWhitespace()) {
            constexpr int shown = 40;
            raise(QStringLiteral("expected an element, found the text \"%1\"")
                      .arg(text().toString().simplified().left(shown)));
        }
    }
    return false;
}

QString FLodmXmlReader::plainText() {
    return FLodmText::fromXml(readElementText(ErrorOnUnexpectedElement));
}

QString FLodmXmlReader::attribute(const char* attributeName, const QString& byDefault) const {
    const QXmlStreamAttributes all = attributes();
    const QLatin1String key(attributeName);
    return all.hasAttribute(key) ? FLodmText::fromXml(all.value(key).toString()) : byDefault;
}

int FLodmXmlReader::wholeAttribute(const char* attributeName, const QString& byDefault) {
    const QString found = attribute(attributeName, byDefault);
    bool isWhole = false;
    const int number = found.toInt(&isWhole);
    if (!isWhole) {
        raise(QStringLiteral("expected a whole number as \"%1\" of %2, found \"%3\"")
                  .arg(QLatin1String(attributeName), tag(), found));
    }
    return number;
}

void FLodmXmlReader::checkAttributes(const QStringList& known) {
    for (const QXmlStreamAttribute& present : attributes()) {
        const QString found = present.qualifiedName().toString();
        if (!known.contains(found)) {
            raise(QStringLiteral("%1 has no attribute \"%2\"%3").arg(tag(), found, didYouMean(found, known)));
        }
    }
}

bool FLodmXmlReader::isElement(const char* elementName) const {
    return qualifiedName() == QLatin1String(elementName);
}

QString FLodmXmlReader::tag() const {
    return QLatin1Char('<') + qualifiedName().toString() + QLatin1Char('>');
}

FPlace FLodmXmlReader::place() const {
    return {static_cast<int>(lineNumber()) + mFirstLine - 1, static_cast<int>(columnNumber()) + 1};
}
