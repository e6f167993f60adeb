#include "host/lodm/FLodmEntryReader.h"

#include "host/core/FPrototypes.h"
#include "host/design/FEntryDef.h"
#include "host/design/FEntryName.h"
#include "host/design/FEntryTree.h"
#include "host/lodm/FLodmDefaultValue.h"
#include "host/lodm/FLodmXmlReader.h"

#include <QSet>

#include <algorithm>
#include <iterator>

namespace {

using lodm::word;
using Nodes = std::vector<FLodmEntry>;

FLodmEntry::Default kindOfWord(const QString& text) {
    const auto found = std::find(std::begin(lodm::kindWords), std::end(lodm::kindWords), text);
    return found == std::end(lodm::kindWords)
               ? FLodmEntry::Default::None
               : static_cast<FLodmEntry::Default>(std::distance(std::begin(lodm::kindWords), found) + 1);
}

/** A name that two of the entries have, or an empty text. */
QString doubleName(const Nodes& nodes) {
    QSet<QString> names;
    for (const FLodmEntry& node : nodes) {
        if (names.contains(node.name)) {
            return node.name;
        }
        names.insert(node.name);
    }
    return {};
}

}  // namespace

void FLodmEntryReader::readEntry(Nodes& nodes, int level) {
    FLodmEntry entry;
    entry.isGroup = mXml.isElement(lodm::groupElement);
    if (!entry.isGroup && !mXml.isElement(lodm::entryElement)) {
        mXml.raise(QStringLiteral("expected <%1> or <%2>, found %3")
                       .arg(word(lodm::groupElement), word(lodm::entryElement), mXml.tag()));
        return;
    }
    if (level > mostEntryLevels) {
        mXml.raise(QStringLiteral("entries stand in one another on more than %1 levels").arg(mostEntryLevels));
        return;
    }
    if (++mCount > FEntryTree::mostEntries) {
        mXml.raise(QStringLiteral("there are more than %1 entries").arg(FEntryTree::mostEntries));
        return;
    }
    readFrame(entry);
    entry.isGroup ? readGroup(entry, level) : readValues(entry);
    nodes.push_back(std::move(entry));
}

void FLodmEntryReader::readFrame(FLodmEntry& entry) {
    QStringList known{word(lodm::nameAttr), word(lodm::leastAttr), word(lodm::mostAttr), word(lodm::hiddenAttr)};
    if (!entry.isGroup) {
        known.append(word(lodm::typeAttr));
    }
    mXml.checkAttributes(known);
    entry.name = mXml.attribute(lodm::nameAttr);
    if (!isEntryName(entry.name)) {
        mXml.raise(QStringLiteral("expected a name without | [ ] < > and line ends as \"name\" of %1, found \"%2\"")
                       .arg(mXml.tag(), entry.name));
    }
    readOccurrences(entry);
    const QString hidden = mXml.attribute(lodm::hiddenAttr, word(lodm::falseWord));
    entry.hidden = hidden == QLatin1String(lodm::trueWord);
    if (!entry.hidden && hidden != QLatin1String(lodm::falseWord)) {
        mXml.raise(
            QStringLiteral("expected \"true\" or \"false\" as \"hidden\" of %1, found \"%2\"").arg(mXml.tag(), hidden));
    }
    entry.type = mXml.attribute(lodm::typeAttr);
    if (!entry.type.isEmpty() && !FPrototypes::find(entry.type)) {
        mXml.raise(QStringLiteral("the class \"%1\" of entry \"%2\" isn't known; is a plug-in missing?")
                       .arg(entry.type, entry.name));
    }
}

void FLodmEntryReader::readOccurrences(FLodmEntry& entry) {
    entry.least = mXml.wholeAttribute(lodm::leastAttr, QStringLiteral("1"));
    entry.most = mXml.wholeAttribute(lodm::mostAttr, QStringLiteral("1"));
    if (entry.least < 0 || entry.most < std::max(1, entry.least) || entry.most > FEntryDef::mostOccurrences) {
        mXml.raise(QStringLiteral("expected 0 ≤ least ≤ most ≤ %1 and 1 ≤ most, found least %2 and most %3")
                       .arg(FEntryDef::mostOccurrences)
                       .arg(entry.least)
                       .arg(entry.most));
    }
}

void FLodmEntryReader::readGroup(FLodmEntry& group, int level) {
    while (mXml.nextChild()) {
        if (mXml.isElement(lodm::descriptionElement)) {
            mXml.checkAttributes({});
            group.description = mXml.plainText();
        } else {
            readEntry(group.children, level + 1);
        }
    }
    checkNames(group.children);
}

void FLodmEntryReader::readValues(FLodmEntry& entry) {
    while (mXml.nextChild()) {
        if (mXml.isElement(lodm::descriptionElement)) {
            mXml.checkAttributes({});
            entry.description = mXml.plainText();
        } else if (mXml.isElement(lodm::defaultElement)) {
            readDefault(entry);
        } else {
            mXml.raise(QStringLiteral("expected <%1> or <%2>, found %3")
                           .arg(word(lodm::defaultElement), word(lodm::descriptionElement), mXml.tag()));
        }
    }
    const bool isTold = entry.kind != FLodmEntry::Default::None && entry.kind != FLodmEntry::Default::Script;
    if (entry.type.isEmpty() && !isTold) {
        mXml.raise(QStringLiteral("the type of entry \"%1\" isn't told; give it \"%2\", or a default that isn't a "
                                  "script text")
                       .arg(entry.name, word(lodm::typeAttr)));
    }
}

void FLodmEntryReader::readDefault(FLodmEntry& entry) {
    if (entry.kind != FLodmEntry::Default::None) {
        mXml.raise(QStringLiteral("entry \"%1\" has two defaults; remove one").arg(entry.name));
    }
    mXml.checkAttributes({word(lodm::kindAttr)});
    const QString kind = mXml.attribute(lodm::kindAttr);
    entry.kind = kindOfWord(kind);
    entry.valuePlace = mXml.place();
    if (entry.kind == FLodmEntry::Default::None) {
        mXml.raise(QStringLiteral("expected number, text, truth or script as \"kind\" of %1, found \"%2\"")
                       .arg(mXml.tag(), kind));
        return;
    }
    entry.value = mXml.plainText();
    const QString fault = mXml.hasError() ? QString() : FLodmDefaultValue(entry).fault();
    if (!fault.isEmpty()) {
        mXml.raise(fault);
    }
}

void FLodmEntryReader::checkNames(const Nodes& entries) {
    const QString name = doubleName(entries);
    if (!name.isEmpty()) {
        mXml.raise(QStringLiteral("two entries in %1 have the name \"%2\"; rename one").arg(mXml.tag(), name));
    }
}
