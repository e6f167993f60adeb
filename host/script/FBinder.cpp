#include "host/script/FBinder.h"

#include "host/core/FManaged.h"
#include "host/core/FPrototypes.h"
#include "host/script/FCmdManager.h"
#include "host/script/FListLimits.h"
#include "host/script/FMemberCmd.h"
#include "host/script/FOperatorCmd.h"
#include "host/script/FScriptParser.h"

#include <algorithm>

namespace {

/** Commands that follow each other in a chain; each nests the one before. */
constexpr std::size_t longestChain = 500;

FExprBase literalObject(const FLiteral& literal) {
    struct Maker {
        FExprBase operator()(std::monostate) const { return FExprBase(FNull::null()); }
        FExprBase operator()(bool flag) const { return FExprBase(new FBool(flag)); }
        FExprBase operator()(qint64 number) const { return FExprBase(FInteger::fit(static_cast<double>(number))); }
        FExprBase operator()(double number) const { return FExprBase(new FDouble(number)); }
        FExprBase operator()(const QString& text) const { return FExprBase(new FString(text)); }
    };
    return std::visit(Maker(), literal);
}

/** Whether an argument is an object of the model as such, or a list of such: they are taken without their values. */
bool takesObjects(const FCmdType& type) {
    const QString listEnding = QStringLiteral("Container");
    const FObject* prototype =
        type.script.endsWith(listEnding) ? FPrototypes::find(type.script.chopped(listEnding.size())) : nullptr;
    const FClassData* cls = prototype ? &prototype->getClassData() : type.cls;
    return cls && FManaged::mClass.isSuperClassOf(*cls);
}

/** Has all messages about an expression name one place. */
void setPlace(FSyntaxExpr& expression, const FPlace& place) {
    expression.place = place;
    for (FSyntaxExpr& operand : expression.operands) {
        setPlace(operand, place);
    }
}

}  // namespace

FExprBase FBinder::fail(const FPlace& place, const QString& message) {
    if (!mError) {
        mError = FSyntaxError{place, message};
    }
    return {};
}

FExprBase FBinder::bind(const FSyntaxExpr& expression, Use use) {
    switch (expression.kind) {
        case FSyntaxExpr::Kind::Literal:
            return literalObject(expression.literal);
        case FSyntaxExpr::Kind::Name:
            return bindName(expression, use);
        case FSyntaxExpr::Kind::List:
            return bindList(expression, use);
        case FSyntaxExpr::Kind::Call:
            return bindCall(expression, use);
        case FSyntaxExpr::Kind::Chain:
            return bindChain(expression, use);
        case FSyntaxExpr::Kind::Unary:
        case FSyntaxExpr::Kind::Row:
            break;
    }
    return bindOperators(expression, use);
}

FExprBase FBinder::bindName(const FSyntaxExpr& expression, Use use) {
    if (FEnumTable::isWord(expression.name) && !mNames.isAnnounced(expression.name)) {
        return FExprBase(new FString(expression.name));
    }
    FExprBase found = mNames.find(expression.name);
    if (found.isEmpty() && mNames.isGone(expression.name)) {
        return fail(
            expression.place,
            QStringLiteral("the object \"%1\" has been destroyed, or its creation undone").arg(expression.name));
    }
    if (found.isEmpty()) {
        return fail(
            expression.place,
            QStringLiteral("nothing is named \"%1\"%2").arg(expression.name, mNames.suggestion(expression.name)));
    }
    return use == Use::Kept ? keptForm(found, expression) : found;
}

// The value of a variable may be an object that no saved text can name, such as the results of a run.
FExprBase FBinder::keptForm(const FExprBase& found, const FSyntaxExpr& expression) {
    QString fault;
    const FObject* stored = found.getStored();
    const QString text = stored ? stored->getKeptText(fault) : QString();
    if (!fault.isEmpty()) {
        return fail(expression.place, QStringLiteral("\"%1\" can't be kept: ").arg(expression.name) + fault);
    }
    if (text.isEmpty()) {
        return found;
    }
    FParsedExpression parsed = parseExpression(text);
    setPlace(parsed.expression, expression.place);
    return bind(parsed.expression, Use::Kept);
}

std::vector<FExprBase> FBinder::bindAll(const std::vector<FSyntaxExpr>& expressions, Use use) {
    std::vector<FExprBase> bound;
    for (const FSyntaxExpr& expression : expressions) {
        if (mError) {
            break;
        }
        bound.push_back(bind(expression, use));
    }
    return bound;
}

FExprBase FBinder::finish(FCmd* command, const FSyntaxExpr& expression, Use use) {
    FExprBase handle(command);
    if (mError) {
        return {};
    }
    command->setPlace(mFile, expression.place);
    if (use == Use::Kept) {
        command->setKept();
    }
    return handle;
}

FExprBase FBinder::bindOperators(const FSyntaxExpr& expression, Use use) {
    std::vector<FOperator> operators;
    for (const FSyntaxOperator& op : expression.operators) {
        operators.push_back(op.kind);
    }
    return finish(new FOperatorCmd(operators, bindAll(expression.operands, use)), expression, use);
}

FExprBase FBinder::bindList(const FSyntaxExpr& expression, Use use) {
    std::vector<FExprBase> elements = bindAll(expression.operands, use);
    if (mError) {
        return {};
    }
    const bool isConstant = std::none_of(elements.begin(), elements.end(), [](const auto& e) { return e.isCmd(); });
    if (!isConstant) {
        return finish(new FListCmd(std::move(elements)), expression, use);
    }
    auto* list = new FObjectList;
    FExprBase handle(list);
    for (const FExprBase& element : elements) {
        list->add(FExpr<FObject>(element));
    }
    const QString fault = listFault(*list);
    return fault.isEmpty() ? handle : fail(expression.place, fault);
}

bool FBinder::mayStand(const std::vector<const FCmdRow*>& rows, const FSyntaxExpr& call, Use use) {
    const bool asks = std::any_of(rows.begin(), rows.end(), [](const FCmdRow* row) { return row->isQuery(); });
    const bool isData = std::all_of(rows.begin(), rows.end(), [](const FCmdRow* row) { return row->isData; });
    if (use == Use::Kept && !asks) {
        fail(call.place,
             QStringLiteral(
                 "\"%1\" changes something and can't be part of an expression that is kept; call it in a statement "
                 "of its own")
                 .arg(call.name));
    } else if (use == Use::Saved && !isData) {
        fail(call.place, QStringLiteral("\"%1\" can't appear in a saved text; skipped").arg(call.name));
    }
    return !mError;
}

FExprBase FBinder::bindEvaluated(const FSyntaxExpr& expression, bool isObject) {
    FExprBase bound = bind(expression, Use::Kept);
    if (mError || (isObject && !bound.isCmd()) || bound.canSafelyBeUpdated(false)) {
        return bound;
    }
    return fail(expression.place, QStringLiteral("this reads files, which a saved text can't do while it is read"));
}

std::vector<FExprBase> FBinder::bindArguments(const std::vector<const FCmdRow*>& rows, const FSyntaxExpr& call,
                                              Use use) {
    std::vector<FExprBase> arguments;
    for (std::size_t i = 0; i < call.operands.size() && !mError; ++i) {
        const bool isKept = std::any_of(rows.begin(), rows.end(), [i](const FCmdRow* row) {
            return i < row->arguments.size() && row->arguments[i].type.isKept;
        });
        const bool isObject = std::all_of(rows.begin(), rows.end(), [i](const FCmdRow* row) {
            return i < row->arguments.size() && takesObjects(row->arguments[i].type);
        });
        const bool isEvaluated = use == Use::Saved && !isKept;
        arguments.push_back(isEvaluated ? bindEvaluated(call.operands[i], isObject)
                                        : bind(call.operands[i], isKept ? Use::Kept : use));
    }
    return arguments;
}

FExprBase FBinder::bindCall(const FSyntaxExpr& expression, Use use) {
    const auto rows = FCmdManager::instance()->findGlobals(expression.name);
    if (rows.empty()) {
        const bool isCreator = !FCmdManager::instance()->findCreators(expression.name).empty();
        return fail(expression.place,
                    isCreator ? QStringLiteral("\"%1\" makes a named object: write \"%1 name(…)\"").arg(expression.name)
                              : FCmdManager::instance()->unknownGlobal(expression.name));
    }
    if (!mayStand(rows, expression, use)) {
        return {};
    }
    auto* command = new FCmd(*rows.front());
    const FExprBase keep(command);
    command->setArguments(bindArguments(rows, expression, use));
    return finish(command, expression, use);
}

FExprBase FBinder::bindChain(const FSyntaxExpr& expression, Use use) {
    if (expression.operands.size() > longestChain) {
        return fail(expression.place,
                    QStringLiteral("more than %1 commands in one chain; use a variable").arg(longestChain));
    }
    const FSyntaxExpr& first = expression.operands.front();
    FExprBase receiver = bind(first, use);
    for (std::size_t i = 1; i < expression.operands.size() && !mError; ++i) {
        const bool isName = i == 1 && first.kind == FSyntaxExpr::Kind::Name;
        receiver = bindMember(receiver, expression.operands[i], use, isName ? first.name : QString());
    }
    return mError ? FExprBase() : receiver;
}

// Whether the receiver knows the command shows at the latest at execution; here only that some class does.
std::vector<const FCmdRow*> FBinder::memberRows(const FExprBase& receiver, const FSyntaxExpr& call, bool& isOpen) {
    const FObject* type = receiver.getType();
    const bool isList = type && type->isTypeOf(FObjectList::null());
    const bool isKnown = type && type != FObject::null() && type != FNull::null() && !isList;
    auto rows =
        isKnown ? FCmdManager::instance()->findMembers(type->getClassData(), call.name) : std::vector<const FCmdRow*>();
    isOpen = rows.empty();
    if (isOpen) {
        rows = FCmdManager::instance()->findMembersOfAnyClass(call.name);
    }
    if (rows.empty()) {
        fail(call.place, isKnown ? FCmdManager::instance()->unknownMember(type->getClassData(), call.name)
                                 : FCmdManager::instance()->unknownMemberOfAnyClass(call.name));
    }
    return rows;
}

FExprBase FBinder::bindMember(const FExprBase& receiver, const FSyntaxExpr& call, Use use,
                              const QString& receiverName) {
    bool isOpen = false;
    const auto rows = memberRows(receiver, call, isOpen);
    if (mError || !mayStand(rows, call, use)) {
        return {};
    }
    const FCmdRow& row = *rows.front();
    auto* command = row.kind == FCmdRow::Kind::Attribute ? new FAttribCmd(row) : new FMemberCmd(row);
    const FExprBase keep(command);
    command->setReceiver(receiver);
    command->setReceiverName(receiverName);
    if (isOpen) {
        command->setOpen();
    }
    command->setArguments(bindArguments(rows, call, use));
    return finish(command, call, use);
}
