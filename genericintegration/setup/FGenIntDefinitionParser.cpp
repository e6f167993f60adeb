#include "genericintegration/setup/FGenIntDefinitionParser.h"

#include "genericintegration/setup/FAbsentNames.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/setup/FObjectAreaParts.h"
#include "host/core/FObjectManager.h"
#include "host/script/FSavedTextReader.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>

namespace {

/**
 * The name after the label in the first line that begins with it, up to the first white space; empty if there is none.
 * @param lines  where lines begin that are no script: a text in the script may contain the label
 */
QString nameBehind(const QString& text, const std::vector<int>& lines, const QString& label) {
    static const QRegularExpression blank(QStringLiteral("\\s"));
    const auto line =
        std::find_if(lines.begin(), lines.end(), [&](int begin) { return text.midRef(begin, label.size()) == label; });
    if (line == lines.end()) {
        return {};
    }
    const int begin = *line + label.size();
    const int end = text.indexOf(blank, begin);
    return text.mid(begin, end < 0 ? -1 : end - begin);
}

}  // namespace

void FGenIntDefinitionParser::importObjectsFromString(const QString& text) {
    auto* definition = dynamic_cast<FDefinitionGenInt*>(mDefinition.ptr());
    if (text.isEmpty() || !definition) {
        return;
    }
    // Objects that were saved along with the definition may name it.
    if (!mName.isEmpty()) {
        mNames.announce(mName);
        mNames.setDeclared(mName, FExprBase(definition));
    }
    FScript script = FSavedTextReader::parse(text, mSource, {true, true, mObjectAreaLine});
    mFaultCount += static_cast<int>(script.errors.size());
    FAbsentNames(mNames, mSource).takeOut(script.statements);
    const QStringList order = FObjectAreaParts::declaredNames(script.statements);
    const FObjectAreaParts parts(std::move(script.statements), mName);
    startParentReg(definition);
    mFaultCount += FSavedTextReader(mNames, mSource).read(parts.independent);
    takeDefaultsOfObjects();
    mFaultCount += FSavedTextReader(mNames, mSource).read(parts.dependent);
    stopParentReg();
    // An object whose name was taken has a different name than in the file.
    const FExprBase current = mNames.find(nameBehind(text, script.passedOver, QStringLiteral("curFile : ")));
    const FExprBase last = mNames.find(nameBehind(text, script.passedOver, QStringLiteral("lastFile : ")));
    takeFiles(*definition, childrenInOrder(order), current, last);
}

// Objects that others need are made before them, whatever their place in the text.
QList<FManaged*> FGenIntDefinitionParser::childrenInOrder(const QStringList& names) const {
    QHash<FExprBase, int> places;
    for (int place = 0; place < names.size(); ++place) {
        places.insert(mNames.find(names[place]), place);
    }
    const auto placeOf = [&](const FManaged* child) { return places.value(FExprBase(child), names.size()); };
    QList<FManaged*> children = FObjectManager::instance()->getChildrenOf(mDefinition.ptr());
    std::stable_sort(children.begin(), children.end(),
                     [&](const FManaged* a, const FManaged* b) { return placeOf(a) < placeOf(b); });
    return children;
}

void FGenIntDefinitionParser::takeFiles(FDefinitionGenInt& definition, const QList<FManaged*>& children,
                                        const FExprBase& current, const FExprBase& last) {
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
