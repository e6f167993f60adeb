#include "host/run/FValueOrigin.h"

#include "host/core/FNumber.h"
#include "host/core/FObjectList.h"
#include "host/core/FString.h"
#include "host/run/FTableData.h"
#include "host/run/FUtf8.h"
#include "host/run/FValueRemark.h"
#include "host/script/FCmd.h"
#include "host/script/FCmdManager.h"
#include "host/script/FCmdTable.h"

#include <utility>

namespace {

void commands(FCmdTable& table) {
    table.member<FValueOrigin>("get", &FValueOrigin::get, {"name"}).query();
    table
        .member<FValueOrigin>(
            "getNames", +[](const FValueOrigin&) { return FValueOrigin::getNames(); })
        .query();
}

FExpr<FObject> textObject(const QString& text) {
    return FExpr<FObject>(new FString(text));
}

FExpr<FObject> numberObject(qint64 number) {
    return FExpr<FObject>(new FInteger(static_cast<double>(number)));
}

}  // namespace

FClassData FValueOrigin::mClass("FValueOrigin", &FObject::mClass, &commands);

FValueOrigin::FValueOrigin(const FTableData& table, int row)
    : FValueOrigin(table.getName(), table.getRowName(row), table.getElementAt(row, 0), table.getOrigin(row)) {}

FValueOrigin::FValueOrigin(QString file, QString name, double value, FNumberOrigin origin)
    : mFile(std::move(file)), mName(std::move(name)), mValue(value), mOrigin(std::move(origin)) {}

const std::vector<FValueOrigin::Part>& FValueOrigin::parts() {
    using F = const FValueOrigin&;
    static const std::vector<Part> table = {
        {"name", +[](F origin) { return textObject(origin.mName); }},
        {"value", +[](F origin) { return FExpr<FObject>(new FDouble(origin.mValue)); }},
        {"file", +[](F origin) { return textObject(origin.mFile); }},
        {"line", +[](F origin) { return numberObject(origin.mOrigin.line); }},
        {"column", +[](F origin) { return numberObject(origin.mOrigin.column); }},
        {"text", +[](F origin) { return textObject(origin.mOrigin.text); }},
        {"flags",
         +[](F origin) { return FExpr<FObject>(FCmdTypeOf<QStringList>::handle(namesOf(origin.mOrigin.flags))); }},
        {"reason", +[](F origin) { return textObject(FValueRemark::text(origin.mOrigin, origin.mValue)); }},
        {"anchor", +[](F origin) { return textObject(origin.mOrigin.anchor); }},
        {"anchorLine", +[](F origin) { return numberObject(origin.mOrigin.anchorLine); }},
        {"anchorColumn", +[](F origin) { return numberObject(origin.mOrigin.anchorColumn); }},
        {"number", +[](F origin) { return numberObject(origin.mOrigin.valueNumber); }},
        {"rows", +[](F origin) { return origin.rows(); }},
    };
    return table;
}

QStringList FValueOrigin::getNames() {
    QStringList names;
    for (const Part& part : parts()) {
        names.append(QString::fromLatin1(part.name));
    }
    return names;
}

FExpr<FObject> FValueOrigin::get(const QString& name) const {
    for (const Part& part : parts()) {
        if (name == QLatin1String(part.name)) {
            return part.get(*this);
        }
    }
    FCmd::warnNow(getClass(), QStringLiteral("an origin has no \"%1\"%2").arg(name, didYouMean(name, getNames())),
                  QStringLiteral("It has ") + getNames().join(QStringLiteral(", ")));
    return {};
}

FExpr<FObject> FValueOrigin::rows() const {
    auto* list = new FObjectList(FValueOrigin::null());
    const FExpr<FObject> handle(list);
    qint64 begin = 0;
    for (const FAverageRow& row : mOrigin.rows ? mOrigin.rows->rows : std::vector<FAverageRow>()) {
        FNumberOrigin origin;
        origin.text = FUtf8::decode(std::string_view(mOrigin.rows->texts)
                                        .substr(static_cast<size_t>(begin), static_cast<size_t>(row.textEnd - begin)));
        origin.line = row.line;
        origin.column = row.column;
        origin.flags = row.flags;
        origin.valueNumber = mOrigin.valueNumber;
        begin = row.textEnd;
        list->add(FExpr<FObject>(new FValueOrigin(mFile, mName, row.number, origin)));
    }
    return handle;
}

QString FValueOrigin::toString() const {
    QString text = mFile;
    if (mOrigin.line > 0) {
        text += QStringLiteral(":%1").arg(mOrigin.line);
    }
    if (mOrigin.column > 0) {
        text += QStringLiteral(":%1").arg(mOrigin.column) + QStringLiteral(" \"%1\"").arg(mOrigin.text);
    }
    return mOrigin.flags ? text + QStringLiteral(" (%1)").arg(namesOf(mOrigin.flags).join(QStringLiteral(", "))) : text;
}

QString FValueOrigin::getKeptText(QString& fault) const {
    fault = QStringLiteral("the origin of a number isn't saved; use getOrigin in the value");
    return {};
}
