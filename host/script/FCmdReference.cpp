#include "host/script/FCmdReference.h"

#include "host/core/FPrototypes.h"
#include "host/core/FTypeDocu.h"
#include "host/script/FCmdManager.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

const QString& globalWord() {
    static const QString word = QStringLiteral("global");
    return word;
}

/** The documentation texts of a command. */
struct Texts {
    QString description;
    QString example;
    QString result;
    QStringList arguments;

    explicit Texts(const FCmdRow& row) {
        for (const FDocuKey& key : FDocuKey::ofCommand(row)) {
            const QString text = FTypeDocu::translate(key.key, key.disambiguation);
            if (key.argument >= 0) {
                arguments.append(text);
            } else {
                (key.area == 1 ? description : key.area == 2 ? example : result) = text;
            }
        }
    }
};

QString bareName(const FCmdArgument& argument) {
    return argument.name.section(QLatin1Char('='), 0, 0);
}

QString defaultOf(const FCmdArgument& argument) {
    return argument.name.section(QLatin1Char('='), 1);
}

QString signature(const FCmdRow& row) {
    QStringList arguments;
    for (const FCmdArgument& argument : row.arguments) {
        arguments.append(argument.type.script + QLatin1Char(' ') + argument.name);
    }
    const QString front = row.kind == FCmdRow::Kind::Global ? QString()
                          : row.isCreator()                 ? row.name + QStringLiteral(" NAME")
                                                            : QLatin1Char('.') + row.name;
    const QString call = (front.isEmpty() ? row.name : front) + QLatin1Char('(') +
                         arguments.join(QStringLiteral(", ")) + QLatin1Char(')');
    return row.hasResult() ? call + QStringLiteral(" -> ") + row.returnType.script : call;
}

QString indented(const QString& text, const QString& prefix) {
    return prefix + QString(text).replace(QLatin1Char('\n'), QLatin1Char('\n') + prefix) + QLatin1Char('\n');
}

QString classText(const FObject& prototype) {
    prototype.initTypeDocu();
    const QString className = prototype.getClass();
    return FTypeDocu::get(className, 1) + QLatin1Char('\n') +
           indented(FTypeDocu::get(className, 2), QStringLiteral("    "));
}

QString headingOf(const FCmdRow& row) {
    return row.kind == FCmdRow::Kind::Global ? QStringLiteral("Functions") : row.owner->getName();
}

QString firstSentence(const QString& text) {
    static const QRegularExpression end(QStringLiteral("[.:;](?=\\s|$)"));
    const QString line = text.section(QLatin1Char('\n'), 0, 0);
    const int index = line.indexOf(end);
    return index < 0 ? line : line.left(index);
}

/** Whether a command is only for the program itself. */
bool isInternal(const FCmdRow* row) {
    constexpr unsigned int internalFlag = 2;
    return row->presentation.hidden && row->presentation.systemFlag >= internalFlag;
}

bool isDescribed(const QString& className) {
    const QString key = QLatin1Char('!') + className;
    return FTypeDocu::translate(key) != key;
}

QString underlined(const QString& name) {
    return name + QLatin1Char('\n') + QString(name.size(), QLatin1Char('=')) + QLatin1Char('\n');
}

void insertFlags(QJsonObject& object, const FCmdRow& row) {
    object.insert(QStringLiteral("isData"), row.isData);
    object.insert(QStringLiteral("isQuery"), row.isQuery());
    object.insert(QStringLiteral("isOutcome"), row.isOutcome);
    object.insert(QStringLiteral("isUnwrapped"), row.isUnwrapped);
}

void insertPresentation(QJsonObject& object, const FCmdPresentation& look) {
    const auto number = [](unsigned int value) { return static_cast<qint64>(value); };
    object.insert(QStringLiteral("attrName"), look.attrName);
    object.insert(QStringLiteral("category"), look.category);
    object.insert(QStringLiteral("attrRequiredCmd"), look.attrRequiredCmd);
    object.insert(QStringLiteral("menuEntry"), look.menuEntry);
    object.insert(QStringLiteral("menuPlace"), look.menuPlace);
    object.insert(QStringLiteral("menuIcon"), look.menuIcon);
    object.insert(QStringLiteral("cmdFlags"), number(look.cmdFlags));
    object.insert(QStringLiteral("userLevel"), number(look.userLevel));
    object.insert(QStringLiteral("systemFlag"), number(look.systemFlag));
    object.insert(QStringLiteral("weight"), look.weight);
    object.insert(QStringLiteral("attrAsExpr"), look.attrAsExpr);
    object.insert(QStringLiteral("needsGuiReinit"), look.needsGuiReinit);
    object.insert(QStringLiteral("readOnly"), look.readOnly);
    object.insert(QStringLiteral("hidden"), look.hidden);
    object.insert(QStringLiteral("selectOnExec"), look.selectOnExec);
}

QJsonArray argumentsOf(const FCmdRow& row, const QStringList& descriptions) {
    QJsonArray arguments;
    for (std::size_t i = 0; i < row.arguments.size(); ++i) {
        const FCmdArgument& argument = row.arguments[i];
        QJsonObject object{{"type", argument.type.script},
                           {"name", bareName(argument)},
                           {"text", descriptions.value(static_cast<int>(i))}};
        if (!argument.byDefault.isEmpty()) {
            object.insert(QStringLiteral("default"), defaultOf(argument));
        }
        arguments.append(object);
    }
    return arguments;
}

QJsonObject toObject(const FCmdRow& row) {
    const Texts texts(row);
    QJsonObject object{{"command", row.className()},
                       {"class", row.owner ? row.owner->getName() : QString()},
                       {"kind", row.kindWord()},
                       {"name", row.name},
                       {"arguments", argumentsOf(row, texts.arguments)},
                       {"returnType", row.hasResult() ? QJsonValue(row.returnType.script) : QJsonValue()},
                       {"text", texts.description},
                       {"example", texts.example},
                       {"returnText", texts.result}};
    insertFlags(object, row);
    insertPresentation(object, row.presentation);
    return object;
}

}  // namespace

FCmdReference::FCmdReference(const QString& name) : mName(name) {
    FPrototypes::buildPending();
    const FObject* prototype = name.isEmpty() ? nullptr : FObject::getPrototype(name);
    collect(prototype);
    collectDescribed(name.isEmpty() ? FPrototypes::getNames() : prototype ? QStringList(name) : QStringList());
}

void FCmdReference::collectDescribed(const QStringList& classes) {
    QSet<const FClassData*> owners;
    for (const FCmdRow* row : mRows) {
        owners.insert(row->owner);
    }
    for (const QString& name : classes) {
        const FObject* prototype = FPrototypes::find(name);
        if (prototype && !owners.contains(&prototype->getClassData()) && isDescribed(name)) {
            mDescribed.push_back(prototype);
        }
    }
}

void FCmdReference::collect(const FObject* prototype) {
    for (const FCmdRow* row : FCmdManager::instance()->getRows()) {
        const bool isGlobal = row->kind == FCmdRow::Kind::Global;
        const bool isOfClass = prototype && row->owner && row->owner->isSuperClassOf(prototype->getClassData()) &&
                               !FCmdManager::instance()->isHidden(prototype->getClassData(), *row);
        const bool isOfName = !prototype && row->name.compare(mName, Qt::CaseInsensitive) == 0;
        if (mName.isEmpty() || (mName == globalWord() && isGlobal) || isOfClass || isOfName) {
            mRows.push_back(row);
        }
    }
}

QString FCmdReference::unknownName() const {
    QStringList known{globalWord()};
    for (const FCmdRow* row : FCmdManager::instance()->getRows()) {
        known.append(row->owner ? row->owner->getName() : globalWord());
        known.append(row->name);
    }
    known.removeDuplicates();
    return QStringLiteral("no class and no command has the name \"%1\"%2. \"merix commands\" lists all")
        .arg(mName, didYouMean(mName, known));
}

QString FCmdReference::toShortText() const {
    std::vector<const FCmdRow*> rows = mRows;
    rows.erase(std::remove_if(rows.begin(), rows.end(), &isInternal), rows.end());
    // Attributes that windows don't show follow the others of their class.
    const auto key = [](const FCmdRow* row) { return row->presentation.hidden ? 1 : 0; };
    for (auto first = rows.begin(); first != rows.end();) {
        const auto last = std::find_if(first, rows.end(),
                                       [first](const FCmdRow* row) { return headingOf(*row) != headingOf(**first); });
        std::stable_sort(first, last, [key](const FCmdRow* a, const FCmdRow* b) { return key(a) < key(b); });
        first = last;
    }
    QString text;
    QString heading;
    for (const FCmdRow* row : rows) {
        if (headingOf(*row) != heading) {
            heading = headingOf(*row);
            text += (text.isEmpty() ? QString() : QStringLiteral("\n")) + heading + QLatin1Char('\n');
        }
        text += QStringLiteral("  ") + signature(*row) + QStringLiteral("  // ") +
                firstSentence(Texts(*row).description) + QLatin1Char('\n');
    }
    text += mDescribed.empty() ? QString() : QStringLiteral("\nClasses without commands of their own\n");
    for (const FObject* prototype : mDescribed) {
        prototype->initTypeDocu();
        const QString name = prototype->getClass();
        text += QStringLiteral("  %1  // %2\n").arg(name, firstSentence(FTypeDocu::get(name, 1)));
    }
    return text + QStringLiteral(
                      "\nWith descriptions and examples: merix commands NAME (a class or a command), or "
                      "merix commands --full\n");
}

QString FCmdReference::toText() const {
    QString text;
    for (const FObject* prototype : mDescribed) {
        text += (text.isEmpty() ? QString() : QStringLiteral("\n")) + underlined(prototype->getClass()) +
                classText(*prototype);
    }
    QString heading;
    for (const FCmdRow* row : mRows) {
        const QString owner = headingOf(*row);
        if (owner != heading) {
            heading = owner;
            text += (text.isEmpty() ? QString() : QStringLiteral("\n")) + underlined(heading);
            text += row->kind == FCmdRow::Kind::Global ? QString() : classText(*row->owner->mpNull);
        }
        const Texts texts(*row);
        text += QLatin1Char('\n') + signature(*row) + QStringLiteral("   [") + row->kindWord() +
                (row->presentation.hidden ? QStringLiteral(", not in windows]\n") : QStringLiteral("]\n"));
        text += indented(texts.description, QStringLiteral("    "));
        for (std::size_t i = 0; i < row->arguments.size(); ++i) {
            text += indented(
                bareName(row->arguments[i]) + QStringLiteral(": ") + texts.arguments.value(static_cast<int>(i)),
                QStringLiteral("    "));
        }
        if (row->hasResult()) {
            text += indented(QStringLiteral("Result: ") + texts.result, QStringLiteral("    "));
        }
        text += indented(texts.example, QStringLiteral("        "));
    }
    return text;
}

QString FCmdReference::toJson() const {
    QJsonArray commands;
    for (const FCmdRow* row : mRows) {
        commands.append(toObject(*row));
    }
    return QString::fromUtf8(QJsonDocument(commands).toJson(QJsonDocument::Indented));
}
