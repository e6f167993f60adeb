#include "host/script/FCmdRow.h"

#include "host/script/FCmd.h"

namespace {

QString argumentTypes(const FCmdRow& row) {
    QString types;
    for (const FCmdArgument& argument : row.arguments) {
        types += argument.type.script;
    }
    return types;
}

QString className(const FClassData* data, const char* none) {
    return data ? data->getName() : QString::fromLatin1(none);
}

}  // namespace

QString FCmdRow::className() const {
    const QString types = argumentTypes(*this);
    switch (kind) {
        case Kind::Create:
        case Kind::CreateEntity:
            return QStringLiteral("FCreateCmd") + owner->getName() + name + types;
        case Kind::Attribute:
            return QStringLiteral("FAttribCmd") + owner->getName() + name + types;
        case Kind::Member:
            return QStringLiteral("FMemberCmd") + owner->getName() + name + types;
        case Kind::Global:
            break;
    }
    return QStringLiteral("FCmd") + name + ::className(owner, "null") + ::className(returnType.cls, "void") + method +
           types;
}

bool FCmdRow::mayTake(const Values& values, const FObject& receiver) const {
    const QString reason = fault ? fault(values) : QString();
    if (!reason.isEmpty()) {
        FCmd::warnNow(receiver.toString(), reason, QStringLiteral("It stays unchanged"));
    }
    return reason.isEmpty();
}

QString FCmdRow::kindWord() const {
    switch (kind) {
        case Kind::Create:
        case Kind::CreateEntity:
            return QStringLiteral("creator");
        case Kind::Attribute:
            return QStringLiteral("attribute");
        case Kind::Member:
            return QStringLiteral("member");
        case Kind::Global:
            break;
    }
    return QStringLiteral("global");
}

QString FCmdRow::docuRoot() const {
    QStringList words;
    for (const FCmdArgument& argument : arguments) {
        words << argument.type.docu << argument.name;
    }
    const QString front = kind == Kind::Global
                              ? QStringLiteral("!Global.")
                              : QLatin1Char('!') + owner->getName() + QLatin1Char('.') + kindWord() + QLatin1Char('.');
    return front + name + QLatin1Char('(') + words.join(QLatin1Char(',')) + QLatin1Char(')');
}

std::vector<FDocuKey> FDocuKey::ofCommand(const FCmdRow& row) {
    const QString root = row.docuRoot();
    std::vector<FDocuKey> keys{{1, -1, root, {}}, {2, -1, root + QStringLiteral(":example"), {}}};
    if (row.hasResult()) {
        keys.push_back(
            {3, -1, root + QStringLiteral(":returnValue"), QStringLiteral("return type: ") + row.returnType.script});
    }
    for (std::size_t i = 0; i < row.arguments.size(); ++i) {
        const int number = static_cast<int>(i);
        keys.push_back({1, number, root + QStringLiteral(":argument") + QString::number(number), {}});
    }
    return keys;
}
