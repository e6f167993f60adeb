#include "genericintegration/setup/FTemplateTagEditor.h"

#include "genericintegration/templates/FGenIntCommandFile.h"
#include "genericintegration/templates/FTemplateTags.h"

#include <algorithm>

bool FTemplateTagEditor::containTag(const QString& name) const {
    return std::any_of(mFiles.begin(), mFiles.end(), [&name](const FExpr<FGenIntFile>& file) {
        return file && FTemplateTags::containsTag(file->getPlainContent(), name);
    });
}

void FTemplateTagEditor::replaceTags(const QString& name, const QString& text) const {
    for (const FExpr<FGenIntFile>& file : mFiles) {
        if (file) {
            file->setPlainContent(FTemplateTags::replaceTag(file->getPlainContent(), name, text));
        }
    }
}

void FTemplateTagEditor::renameTags(const QString& oldName, const QString& newName) const {
    for (const FExpr<FGenIntFile>& file : mFiles) {
        if (auto* commandFile = dynamic_cast<FGenIntCommandFile*>(file.ptr())) {
            commandFile->updateFile(oldName, newName);
        }
    }
}
