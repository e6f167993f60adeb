#include "host/script/FObjectSaver.h"

#include "host/core/FDocuArea.h"
#include "host/core/FQuotedText.h"
#include "host/script/FCmdManager.h"
#include "host/script/FMemberCmd.h"

#include <iterator>

void FObjectSaver::line(unsigned int indent, const QString& command) {
    mStream << QString(static_cast<int>(indent) * TAB, QLatin1Char(' ')) << '.' << command << ";\n";
}

void FObjectSaver::save(const FManaged& object, unsigned int indent, bool inScope, bool flag) {
    const FCmdRow* creator = FCmdManager::instance()->creatorOf(object.getClassData());
    if (!creator) {
        return;
    }
    const QString blanks(static_cast<int>(indent) * TAB, QLatin1Char(' '));
    const QString arguments = creator->creatorArguments ? creator->creatorArguments(&object) : QString();
    mStream << '\n'
            << blanks << (!inScope && object.hasConfiguration() ? "&" : "") << creator->name << ' ' << object.getName()
            << '(' << arguments << ')';
    const auto attributes = FCmdManager::instance()->getAttributesByReceiver(&object);
    const QStringList further = object.furtherSavedCommands();
    QMap<unsigned int, QString> docu = object.getDocu();
    for (auto area = docu.begin(); area != docu.end();) {
        area = area.value().isEmpty() ? docu.erase(area) : std::next(area);
    }
    if (attributes.empty() && further.isEmpty() && docu.isEmpty() && !flag) {
        mStream << " {}\n";
        return;
    }
    mStream << " {\n";
    for (auto area = docu.constBegin(); area != docu.constEnd(); ++area) {
        const FEnum<FDocuArea> name(static_cast<FDocuArea>(area.key()));
        line(indent + 1, QStringLiteral("addDocu(%1,%2)").arg(quoteText(area.value()), name.getStringValue()));
    }
    object.saveAttributes(mStream, attributes, indent + 1, flag);
    for (const QString& command : further) {
        line(indent + 1, command);
    }
    mStream << blanks << "}\n";
}

void FObjectSaver::saveAttributes(const FManaged& object, const std::vector<const FObject*>& attributes,
                                  unsigned int indent, bool flag) {
    if (flag) {
        line(indent, QStringLiteral("setDbId(%1)").arg(object.getDbId()));
    }
    for (const FObject* attribute : attributes) {
        const auto* command = dynamic_cast<const FAttribCmd*>(attribute);
        const FCmdRow* row = command ? command->getRow() : nullptr;
        if (row && row->isData && row->getter) {
            line(indent, row->name + QLatin1Char('(') + row->getter(&object).toHistoryString() + QLatin1Char(')'));
        }
    }
}
