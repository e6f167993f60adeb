#include "host/script/FCmdReference.h"

#include "host/core/FTypeDocu.h"
#include "host/script/FCmdManager.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const QString& globalWord() {
    static const QString word = QStringLiteral("global");
    return word;
}

/** The texts of a command by its documentation keys. */
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

QJsonObject toObject(const FCmdRow& row) {
    const Texts texts(row);
    QJsonArray arguments;
    for (std::size_t i = 0; i < row.arguments.size(); ++i) {
        const FCmdArgument& argument = row.arguments[i];
        QJsonObject object{{"type", argument.type.script},
                           {"name", bareName(argument)},
                           {"text", texts.arguments.value(static_cast<int>(i))}};
        if (!argument.byDefault.isEmpty()) {
            object.insert(QStringLiteral("default"), defaultOf(argument));
        }
        arguments.append(object);
    }
    return {{"command", row.className()},
            {"class", row.owner ? row.owner->getName() : QString()},
            {"kind", row.kindWord()},
            {"name", row.name},
            {"arguments", arguments},
            {"returnType", row.hasResult() ? QJsonValue(row.returnType.script) : QJsonValue()},
            {"hidden", row.presentation.hidden},
            {"text", texts.description},
            {"example", texts.example},
            {"returnText", texts.result}};
}

}  // namespace

FCmdReference::FCmdReference(const QString& className) : mClassName(className) {
    FPrototypes::buildPending();
    const FObject* prototype = className.isEmpty() ? nullptr : FObject::getPrototype(className);
    for (const FCmdRow* row : FCmdManager::instance()->getRows()) {
        const bool isGlobal = row->kind == FCmdRow::Kind::Global;
        const bool fits = className.isEmpty() || (className == globalWord() && isGlobal) ||
                          (prototype && row->owner && row->owner->isSuperClassOf(prototype->getClassData()) &&
                           !FCmdManager::instance()->isHidden(prototype->getClassData(), *row));
        if (fits) {
            mRows.push_back(row);
        }
    }
}

QString FCmdReference::unknownClass() const {
    QStringList known{globalWord()};
    for (const FCmdRow* row : FCmdManager::instance()->getRows()) {
        known.append(row->owner ? row->owner->getName() : globalWord());
    }
    known.removeDuplicates();
    return QStringLiteral("no commands are known for the class \"%1\"%2; known are %3")
        .arg(mClassName, didYouMean(mClassName, known), known.join(QStringLiteral(", ")));
}

QString FCmdReference::toText() const {
    QString text;
    QString heading;
    for (const FCmdRow* row : mRows) {
        const QString owner = row->kind == FCmdRow::Kind::Global ? QStringLiteral("Functions") : row->owner->getName();
        if (owner != heading) {
            heading = owner;
            text += (text.isEmpty() ? QString() : QStringLiteral("\n")) + heading + QLatin1Char('\n') +
                    QString(heading.size(), QLatin1Char('=')) + QLatin1Char('\n');
            text += row->kind == FCmdRow::Kind::Global ? QString() : classText(*row->owner->mpNull);
        }
        const Texts texts(*row);
        text += QLatin1Char('\n') + signature(*row) + QStringLiteral("   [") + row->kindWord() +
                (row->presentation.hidden ? QStringLiteral(", hidden]\n") : QStringLiteral("]\n"));
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
