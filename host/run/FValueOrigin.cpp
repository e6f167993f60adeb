#include "host/run/FValueOrigin.h"

#include "host/core/FNearestName.h"
#include "host/core/FNumber.h"
#include "host/core/FObjectList.h"
#include "host/core/FString.h"
#include "host/run/FTableData.h"
#include "host/run/FUtf8.h"
#include "host/run/FValueRemark.h"
#include "host/script/FCmd.h"
#include "host/script/FCmdTable.h"

#include <functional>
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

QStringList FValueOrigin::getNames() {
    return {QStringLiteral("name"),       QStringLiteral("value"),        QStringLiteral("file"),
            QStringLiteral("line"),       QStringLiteral("column"),       QStringLiteral("text"),
            QStringLiteral("flags"),      QStringLiteral("reason"),       QStringLiteral("anchor"),
            QStringLiteral("anchorLine"), QStringLiteral("anchorColumn"), QStringLiteral("number"),
            QStringLiteral("rows")};
}

FExpr<FObject> FValueOrigin::get(const QString& name) const {
    const auto flags = [this] { return FExpr<FObject>(FCmdTypeOf<QStringList>::handle(namesOf(mOrigin.flags))); };
    switch (getNames().indexOf(name)) {
        case 0:
            return textObject(mName);
        case 1:
            return FExpr<FObject>(new FDouble(mValue));
        case 2:
            return textObject(mFile);
        case 3:
            return numberObject(mOrigin.line);
        case 4:
            return numberObject(mOrigin.column);
        case 5:
            return textObject(mOrigin.text);
        case 6:
            return flags();
        case 7:
            return textObject(FValueRemark::text(mOrigin, mValue));
        case 8:
            return textObject(mOrigin.anchor);
        case 9:
            return numberObject(mOrigin.anchorLine);
        case 10:
            return numberObject(mOrigin.anchorColumn);
        case 11:
            return numberObject(mOrigin.valueNumber);
        case 12:
            return rows();
        default:
            break;
    }
    const QString near = nearestName(name, getNames());
    FCmd::warnNow(getClass(),
                  QStringLiteral("an origin has no \"%1\"%2")
                      .arg(name, near.isEmpty() ? QString() : QStringLiteral(" (did you mean \"%1\"?)").arg(near)),
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
