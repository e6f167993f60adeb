#include "host/lodm/FLodmEntryWriter.h"

#include "host/core/FDocuArea.h"
#include "host/design/FDefinition.h"
#include "host/design/FEntryDef.h"
#include "host/lodm/FLodmDefaultValue.h"
#include "host/lodm/FLodmEntry.h"
#include "host/lodm/FLodmText.h"

using lodm::word;

bool FLodmEntryWriter::write(const FDefinition& definition) {
    mXml.setAutoFormatting(true);
    mXml.writeStartElement(word(lodm::definitionElement));
    attribute(lodm::versionAttr, QString::number(lodm::formatVersion));
    attribute(lodm::nameAttr, definition.getName());
    writeDocu(definition);
    writeEntries(definition);
    mXml.writeEndDocument();
    return !mXml.hasError();
}

void FLodmEntryWriter::writeDocu(const FDefinition& definition) {
    const QMap<unsigned int, QString>& areas = FEnum<FDocuArea>::table().getTexts();
    for (auto area = areas.begin(); area != areas.end(); ++area) {
        const QString text = definition.getDocu().value(area.key());
        if (!text.isEmpty()) {
            mXml.writeStartElement(word(lodm::docuElement));
            attribute(lodm::areaAttr, *area);
            mXml.writeCharacters(FLodmText::toXml(text));
            mXml.writeEndElement();
        }
    }
}

void FLodmEntryWriter::attribute(const char* name, const QString& text) {
    mXml.writeAttribute(word(name), FLodmText::toXml(text));
}

void FLodmEntryWriter::writeEntries(const FEntryHolder& holder) {
    for (const FExpr<FEntryBase>& entry : holder.getEntries()) {
        writeEntry(*static_cast<const FEntryDef*>(entry.ptr()));
    }
}

void FLodmEntryWriter::writeEntry(const FEntryDef& entry) {
    mXml.writeStartElement(word(entry.isGroup() ? lodm::groupElement : lodm::entryElement));
    writeFrame(entry);
    if (entry.hasDefault()) {
        writeDefault(entry);
    }
    if (!entry.getDescription().isEmpty()) {
        mXml.writeTextElement(word(lodm::descriptionElement), FLodmText::toXml(entry.getDescription()));
    }
    writeEntries(entry);
    mXml.writeEndElement();
}

void FLodmEntryWriter::writeFrame(const FEntryDef& entry) {
    attribute(lodm::nameAttr, entry.getName());
    if (entry.getMinOccurrences() != 1 || entry.getMaxOccurrences() != 1) {
        attribute(lodm::leastAttr, QString::number(entry.getMinOccurrences()));
        attribute(lodm::mostAttr, QString::number(entry.getMaxOccurrences()));
    }
    if (entry.isHidden()) {
        attribute(lodm::hiddenAttr, word(lodm::trueWord));
    }
    if (!entry.isGroup()) {
        attribute(lodm::typeAttr, entry.getType()->getClass());
    }
}

void FLodmEntryWriter::writeDefault(const FEntryDef& entry) {
    const FExprBase& value = entry.getDefaultValue();
    const FLodmEntry::Default kind = FLodmDefaultValue::kindOf(*value.getStored());
    mXml.writeStartElement(word(lodm::defaultElement));
    attribute(lodm::kindAttr, word(lodm::kindWords[static_cast<int>(kind) - 1]));
    const bool isScript = kind == FLodmEntry::Default::Script;
    mXml.writeCharacters(FLodmText::toXml(isScript ? value.toHistoryString() : value.getStored()->toString()));
    mXml.writeEndElement();
}
