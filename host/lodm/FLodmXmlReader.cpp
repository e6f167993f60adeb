#include "host/lodm/FLodmXmlReader.h"

#include "host/lodm/FLodmText.h"

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

bool FLodmXmlReader::isElement(const char* elementName) const {
    return qualifiedName() == QLatin1String(elementName);
}

QString FLodmXmlReader::tag() const {
    return QLatin1Char('<') + qualifiedName().toString() + QLatin1Char('>');
}

FPlace FLodmXmlReader::place() const {
    return {static_cast<int>(lineNumber()), static_cast<int>(columnNumber()) + 1};
}
