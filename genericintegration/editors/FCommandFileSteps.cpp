#include "genericintegration/editors/FCommandFileSteps.h"

#include "genericintegration/editors/FEditBuffer.h"
#include "genericintegration/io/FTemplateKeys.h"
#include "genericintegration/marking/FEntryNameProposal.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/setup/FReplacedText.h"
#include "genericintegration/setup/FTemplateTagEditor.h"
#include "genericintegration/templates/FTemplateTags.h"
#include "host/core/FBasicType.h"
#include "host/core/FHold.h"
#include "host/core/FNumber.h"
#include "host/core/FObjectEditorWgt.h"
#include "host/core/FObjectName.h"
#include "host/core/FString.h"
#include "host/core/FUserStep.h"
#include "host/design/FConfiguration.h"
#include "host/design/FEntry.h"
#include "host/design/FEntryDef.h"

#include <QTextCursor>

FEntryDef* FCommandFileSteps::entryOf(const QString& name) const {
    if (auto* entry = dynamic_cast<FEntryDef*>(mDefinition.getEntryOfScope(name))) {
        return entry;
    }
    // As the writer finds it: case doesn't matter.
    const QStringList paths = mDefinition.getEntryMap().keys();
    FTemplateKeys keys;
    for (const QString& path : paths) {
        keys.append(path, true);
    }
    const int row = keys.find(name);
    return row == FTemplateKeys::notFound ? nullptr : dynamic_cast<FEntryDef*>(mDefinition.getEntryOfScope(paths[row]));
}

void FCommandFileSteps::create(const QString& proposal, double value, const QTextCursor& place) {
    {
        FUserStep step(QStringLiteral("create commandfile entry"));
        const FExpr<FDouble> number(new FDouble(value));
        const QString replaced = place.selectedText().replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
        const QString name = freeName(FEntryNameProposal::usable(proposal), nullptr);
        if (FEntryDef* entry = FEntryDef::create(name, &mDefinition, 1, 1, false, true, QString(), number)) {
            mBuffer.replace(place, FTemplateTags::tagOf(entry->getFullName()));
            if (replaced != number->toPlainString()) {
                keepText(*entry, replaced);
            }
        }
    }
    FObjectEditorWgt::instance()->reinitialize();
}

// Tags of two entries whose names differ only in case would mean the same one.
QString FCommandFileSteps::freeName(const QString& name, const FEntryDef* entry) const {
    const QString path = entry ? entry->getFullName() : QString();
    const QString group = path.left(path.lastIndexOf(QLatin1Char('|')) + 1);
    return uniqueName(name, [&](const QString& candidate) {
        const FEntryDef* other = entryOf(group + candidate);
        return other && other != entry;
    });
}

// The program may read fixed columns, tell "7." from "7", or expect a word.
void FCommandFileSteps::keepText(const FEntryDef& entry, const QString& text) {
    for (FConfiguration* configuration : mDefinition.getConfigurations()) {
        configuration->setEntryValue(entry.getFullName(), FExprBase(new FString(text)));
    }
}

// A configuration may have got another text since.
std::optional<QString> FCommandFileSteps::keptText(const FEntryDef& entry) const {
    const FObject* standard = entry.getDefaultValue().getObject();
    for (const FConfiguration* configuration : mDefinition.getConfigurations()) {
        const FEntry* own = configuration->getValueEntry(entry.getFullName());
        const auto* text = own ? dynamic_cast<const FString*>(own->getValue().getStored()) : nullptr;
        if (text && FReplacedText::standsFor(text->getValue(), standard)) {
            return text->getValue();
        }
    }
    return std::nullopt;
}

// The definition alone would leave it in the configurations until something else changes.
void FCommandFileSteps::removeFromDefinition(const FExpr<FEntryBase>& entry) {
    mDefinition.findAndRemoveEntry(entry);
    mDefinition.reinitConfigurations(false);
}

void FCommandFileSteps::insert(const QString& name, const QTextCursor& place) {
    FUserStep step(QStringLiteral("insert commandfile entry"));
    mBuffer.replace(place, FTemplateTags::tagOf(name));
}

void FCommandFileSteps::rename(FEntryDef& entry, const QString& name) {
    if (name != entry.getName()) {
        const FWaitCursor busy;  // large templates may have many tags
        const FExpr<FEntryBase> held(&entry);
        FUserStep step(QStringLiteral("rename commandfile entry"));
        entry.setName(freeName(name, &entry));
    }
    FObjectEditorWgt::instance()->reinitialize();
}

void FCommandFileSteps::remove(FEntryDef* entry, const QTextCursor& tag) {
    const auto* value = entry ? objectCast<FBasicType>(entry->getDefaultValue().getObject()) : nullptr;
    const QString text = value ? keptText(*entry).value_or(value->toString()) : QString();
    replaceTag(QStringLiteral("remove commandfile entry"), entry, tag, text);
}

void FCommandFileSteps::replace(FEntryDef* entry, const QTextCursor& tag, const QString& name) {
    replaceTag(QStringLiteral("replace commandfile entry"), entry, tag, FTemplateTags::tagOf(name));
}

// The text is written before the references are counted.
void FCommandFileSteps::replaceTag(const QString& label, FEntryDef* entry, const QTextCursor& tag,
                                   const QString& text) {
    const FExpr<FEntryBase> held(entry);
    {
        FUserStep step(label);
        if (!tag.isNull()) {
            mBuffer.replace(tag, text);
        }
        if (held && !mDefinition.commandFileReferencesEntry(held)) {
            removeFromDefinition(held);
        }
    }
    FObjectEditorWgt::instance()->reinitialize();
}

void FCommandFileSteps::destroy(FEntryDef& entry) {
    {
        const FWaitCursor busy;
        const FExpr<FEntryBase> held(&entry);
        FUserStep step(QStringLiteral("remove commandfile entry"));
        if (const std::optional<QString> text = keptText(entry)) {
            FTemplateTagEditor(mDefinition.getCommandFiles()).replaceTags(entry.getFullName(), *text);
        }
        removeFromDefinition(held);
    }
    FObjectEditorWgt::instance()->reinitialize();
}
