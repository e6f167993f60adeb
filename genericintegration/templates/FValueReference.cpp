#include "genericintegration/templates/FValueReference.h"

#include "host/core/FQuotedText.h"

QString FValueReference::text() const {
    return computation + QStringLiteral(".getResults().getTable(") + quoteText(file) +
           QStringLiteral(").getElementAt(") + quoteText(value) + QStringLiteral(")");
}
