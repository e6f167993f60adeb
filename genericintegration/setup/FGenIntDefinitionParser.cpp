#include "genericintegration/setup/FGenIntDefinitionParser.h"

#include "genericintegration/setup/FDefinitionGenInt.h"
#include "host/core/FObjectManager.h"
#include "host/script/FSavedTextReader.h"

#include <QRegularExpression>

namespace {

/** The name after the first label of that kind, up to the first white space; empty if there is none. */
QString nameBehind(const QString& text, const QString& label) {
    static const QRegularExpression blank(QStringLiteral("\\s"));
    const int found = text.indexOf(label);
    const int begin = found + label.size();
    const int end = found < 0 ? -1 : text.indexOf(blank, begin);
    return found < 0 ? QString() : text.mid(begin, end < 0 ? -1 : end - begin);
}

}  // namespace

void FGenIntDefinitionParser::importObjectsFromString(const QString& text) {
    auto* definition = dynamic_cast<FDefinitionGenInt*>(mDefinition.ptr());
    if (text.isEmpty() || !definition) {
        return;
    }
    // The text starts with as many line ends as there are lines before it, so that messages give lines of the file.
    const QString area = QString(mObjectAreaLines, QLatin1Char('\n')) + text;
    // Objects that were saved along with the definition may name it.
    if (!mName.isEmpty()) {
        mNames.setVariable(mName, FExprBase(definition));
    }
    startParentReg(definition);
    FSavedTextReader::read(area, mSource, {true, true}, mNames);
    stopParentReg();
    // An object whose name was taken has a different name than in the file.
    const FExprBase current = mNames.find(nameBehind(text, QStringLiteral("curFile : ")));
    const FExprBase last = mNames.find(nameBehind(text, QStringLiteral("lastFile : ")));
    takeFiles(*definition, current, last);
}

void FGenIntDefinitionParser::takeFiles(FDefinitionGenInt& definition, const FExprBase& current,
                                        const FExprBase& last) {
    const QList<FManaged*> children = FObjectManager::instance()->getChildrenOf(&definition);
    QList<FExpr<FGenIntFile>> files;
    for (FManaged* child : children) {
        const FExpr<FGenIntFile> file(child);
        if (!file) {
            continue;
        }
        files.append(file);
        if (file == current) {
            definition.setCurFile(file);
        }
        if (file == last) {
            definition.setLastFile(file);
        }
        child->registerObject();
    }
    definition.setFiles(files);
    const FExpr<FGenIntFile> first(children.isEmpty() ? nullptr : children.first());
    if (first && !definition.getCurFile()) {
        definition.setCurFile(first);
    }
}
