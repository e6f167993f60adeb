#include "host/script/FCmdTable.h"

namespace {

/** The value of a default as given in the argument's documented name. */
FExprBase defaultValue(const QString& text, const FCmdType& type) {
    if (text == QLatin1String("NULL")) {
        return FExprBase(FNull::null());
    }
    if (type.cls == &FBool::mClass) {
        return FExprBase(new FBool(text == QLatin1String("true")));
    }
    if (type.cls == &FString::mClass) {
        return FExprBase(new FString(text.mid(1, text.size() - 2)));
    }
    return FExprBase(new FDouble(text.toDouble()));
}

}  // namespace

void FCmdTable::add(FCmdRow::Kind kind, const char* name, const std::vector<FCmdType>& types,
                    const FCmdType& returnType, Names names) {
    auto row = std::make_unique<FCmdRow>();
    row->kind = kind;
    row->name = QString::fromLatin1(name);
    row->method = row->name;
    row->owner = mpOwner;
    row->returnType = returnType;
    auto documented = names.begin();
    for (const FCmdType& type : types) {
        const QString argument = documented == names.end() ? QString() : QString::fromLatin1(*documented++);
        const int equals = argument.indexOf(QLatin1Char('='));
        row->arguments.push_back(
            {type, argument, equals < 0 ? FExprBase() : defaultValue(argument.mid(equals + 1), type)});
    }
    mRows.push_back(std::move(row));
}
