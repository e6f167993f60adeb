#pragma once

#include "host/core/FExport.h"
#include "host/core/FScope.h"
#include "host/script/FCmdRow.h"

#include <initializer_list>
#include <memory>
#include <utility>
#include <vector>

/** What a creator makes: the name of the declaration, and the scope for entities. */
struct MERIX_EXPORT FNewName {
    QString name;
    FExpr<FScope> scope;
};

namespace cmdtable {

template <class F>
struct Signature : Signature<decltype(&F::operator())> {};
template <class R, class C, class... A>
struct Signature<R (C::*)(A...)> {
    using Result = R;
    using Class = C;
    using Arguments = std::tuple<std::decay_t<A>...>;
    static constexpr bool isMember = true;
};
template <class R, class C, class... A>
struct Signature<R (C::*)(A...) const> : Signature<R (C::*)(A...)> {};
template <class R, class... A>
struct Signature<R (*)(A...)> {
    using Result = R;
    using Arguments = std::tuple<std::decay_t<A>...>;
};

/** The arguments after the first one. */
template <class Tuple>
struct Tail;
template <class First, class... Rest>
struct Tail<std::tuple<First, Rest...>> {
    using Arguments = std::tuple<Rest...>;
};

template <class Arguments>
struct Types;
template <class... A>
struct Types<std::tuple<A...>> {
    static std::vector<FCmdType> list() { return {FCmdTypeOf<A>::type()...}; }
};

template <class... A, std::size_t... I, class F, class... First>
decltype(auto) apply(F& f, const FCmdRow::Values& values, std::tuple<A...>*, std::index_sequence<I...>,
                     First&&... first) {
    return std::invoke(f, std::forward<First>(first)..., std::any_cast<const A&>(values[I])...);
}

/** Calls `f(first..., values...)`. */
template <class Arguments, class F, class... First>
decltype(auto) apply(F& f, const FCmdRow::Values& values, First&&... first) {
    return apply(f, values, static_cast<Arguments*>(nullptr), std::make_index_sequence<std::tuple_size_v<Arguments>>(),
                 std::forward<First>(first)...);
}

/** The same, and makes a handle of what it returns. */
template <class Result, class Arguments, class F, class... First>
FExprBase call(F& f, const FCmdRow::Values& values, First&&... first) {
    if constexpr (std::is_void_v<Result>) {
        apply<Arguments>(f, values, std::forward<First>(first)...);
        return FExprBase();
    } else {
        return FCmdTypeOf<std::decay_t<Result>>::handle(apply<Arguments>(f, values, std::forward<First>(first)...));
    }
}

}  // namespace cmdtable

/**
 * The table of a class's commands. A class's command function adds rows; settings speak of the row added last:
 *
 *     table.attribute("setFileName", &FGenIntFile::setFileName, &FGenIntFile::getFileName, {"fileName"})
 *         .attrName("File Name").hidden().systemFlag(2).data();
 *
 * Operations are members of the class, or functions with the receiver as first argument; argument and result types of
 * the command are those of the function. Overloads of a name are tried in the order of the table.
 */
class MERIX_EXPORT FCmdTable {
 public:
    using Names = std::initializer_list<const char*>;

    explicit FCmdTable(FClassData& owner) : mpOwner(&owner) {}

    /** `make` takes an FNewName and the arguments, and returns the object. */
    template <class F>
    FCmdTable& creator(const char* name, F make, Names names = {}) {
        return addCreator(FCmdRow::Kind::Create, name, std::move(make), names);
    }
    template <class F>
    FCmdTable& entityCreator(const char* name, F make, Names names = {}) {
        return addCreator(FCmdRow::Kind::CreateEntity, name, std::move(make), names);
    }
    /** `set` and `get` are members of C, or functions that take it first. The class is that of `get`'s object. */
    template <class C, class F, class G>
    FCmdTable& attribute(const char* name, F set, G get, Names names) {
        addMember<C>(FCmdRow::Kind::Attribute, name, std::move(set), names);
        using Value = std::decay_t<std::invoke_result_t<G, const C&>>;
        last().getter = [get](const FObject* object) {
            return FCmdTypeOf<Value>::handle(std::invoke(get, dynamic_cast<const C&>(*object)));
        };
        return *this;
    }
    /**
     * An attribute that is a plain value, declared in one place: row, undo, recording, saved form and copy follow from
     * this. A change marks what depends on the object, unless `marksClients(false)` says otherwise; a value equal to
     * the present one changes nothing.
     * @param member  a data member of C, or a function that takes a C& and returns a reference to the value
     */
    template <class C, class M>
    FCmdTable& plain(const char* name, M member, Names names);
    template <class C, class F>
    FCmdTable& member(const char* name, F operation, Names names = {}) {
        return addMember<C>(FCmdRow::Kind::Member, name, std::move(operation), names);
    }
    /** A command without a receiver of the script's. */
    template <class F>
    FCmdTable& global(const char* name, F function, Names names = {}) {
        using S = cmdtable::Signature<F>;
        using Arguments = typename S::Arguments;
        add(FCmdRow::Kind::Global, name, cmdtable::Types<Arguments>::list(),
            FCmdTypeOf<std::decay_t<typename S::Result>>::type(), names);
        last().owner = nullptr;
        last().call = [function](FObject*, const FCmdRow::Values& values) mutable {
            return cmdtable::call<typename S::Result, Arguments>(function, values);
        };
        return *this;
    }

    // ---- about the row added last ----
    /** For a plain attribute: copies of the object take it over. */
    FCmdTable& copied() { return last().isCopied = true, *this; }
    FCmdTable& marksClients(bool marks) { return last().marksClients = marks, *this; }
    /** For a plain attribute: `fault` gives the reason why a value is refused, or an empty text. */
    template <class V>
    FCmdTable& accepts(QString (*fault)(const V& value)) {
        last().fault = [fault](const FCmdRow::Values& values) {
            return fault(std::any_cast<const V&>(values.front()));
        };
        return *this;
    }
    /** `text` is part of the message after a null result: why there is none; empty if it isn't known. */
    template <class C>
    FCmdTable& explains(QString (*text)(const C& receiver)) {
        last().explanation = [text](const FObject* receiver) { return text(dynamic_cast<const C&>(*receiver)); };
        return *this;
    }
    /** `list` names what else the receiver has, for the same message. */
    template <class C>
    FCmdTable& alternatives(QStringList (*list)(const C& receiver)) {
        last().explanation = [list](const FObject* receiver) {
            const QStringList known = list(dynamic_cast<const C&>(*receiver));
            return known.isEmpty() ? QString() : QStringLiteral("there are ") + known.join(QStringLiteral(", "));
        };
        return *this;
    }
    /** Its execution changes nothing and reads no file. */
    FCmdTable& query() { return effect(FCmdRow::Effect::Pure); }
    /** Its execution changes nothing, but may read files. */
    FCmdTable& readsFiles() { return effect(FCmdRow::Effect::ReadsFiles); }
    FCmdTable& data() { return last().isData = true, *this; }
    /** The result tells whether it succeeded; a script that ignores a failure fails, see FFailedOutcomes. */
    FCmdTable& outcome() { return last().isOutcome = true, *this; }
    FCmdTable& unwrapped() { return last().isUnwrapped = true, *this; }
    /**
     * The result is read from the parts of the receiver that `find` gives, as handles, for the same arguments. Kept,
     * the command depends on those instead of the receiver, so that what else there is in the receiver can depend on
     * it.
     */
    template <class C, class F>
    FCmdTable& readFrom(F find) {
        using Arguments = typename cmdtable::Signature<F>::Arguments;
        last().sources = [find](FObject* receiver, const FCmdRow::Values& values) mutable {
            return cmdtable::apply<Arguments>(find, values, dynamic_cast<C&>(*receiver));
        };
        return *this;
    }
    FCmdTable& method(const char* name) { return last().method = QString::fromLatin1(name), *this; }
    /** The global command acts on the prototype of the table's class. */
    FCmdTable& onPrototype() { return last().owner = mpOwner, *this; }
    FCmdTable& returns(const FCmdType& type) { return last().returnType = type, *this; }
    FCmdTable& savedArguments(std::function<QString(const FObject*)> text) {
        return last().creatorArguments = std::move(text), *this;
    }
    FCmdTable& attrName(const char* label) { return look().attrName = QString::fromLatin1(label), *this; }
    FCmdTable& category(const char* name) { return look().category = QString::fromLatin1(name), *this; }
    FCmdTable& attrRequiredCmd(const char* text) { return look().attrRequiredCmd = QString::fromLatin1(text), *this; }
    FCmdTable& attrAsExpr(bool asExpr) { return look().attrAsExpr = asExpr, *this; }
    FCmdTable& needsGuiReinit(bool needs) { return look().needsGuiReinit = needs, *this; }
    FCmdTable& cmdFlags(unsigned int flags) { return look().cmdFlags = flags, *this; }
    FCmdTable& userLevel(unsigned int level) { return look().userLevel = level, *this; }
    FCmdTable& systemFlag(unsigned int flag) { return look().systemFlag = flag, *this; }
    FCmdTable& weight(double weight) { return look().weight = weight, *this; }
    FCmdTable& readOnly(bool readOnly = true) { return look().readOnly = readOnly, *this; }
    FCmdTable& hidden(bool hidden = true) { return look().hidden = hidden, *this; }
    FCmdTable& selectOnExec(bool select) { return look().selectOnExec = select, *this; }
    FCmdTable& menuEntry(const char* text, int place) {
        look().menuEntry = QString::fromLatin1(text);
        return look().menuPlace = place, *this;
    }
    FCmdTable& menuIcon(const char* path) { return look().menuIcon = QString::fromLatin1(path), *this; }

    /**
     * Hides the inherited command of that class name for this class, as soon as all tables exist. An unknown name has
     * no effect; a test lists those (`FCmdManager::hiddenUnknownNames`).
     */
    FCmdTable& hideInherited(const char* commandClass) {
        mHidden.append(QString::fromLatin1(commandClass));
        return *this;
    }

    const std::vector<std::unique_ptr<FCmdRow>>& getRows() const { return mRows; }
    const QStringList& getHidden() const { return mHidden; }

 private:
    template <class F>
    FCmdTable& addCreator(FCmdRow::Kind kind, const char* name, F make, Names names) {
        using S = cmdtable::Signature<F>;
        using Arguments = typename cmdtable::Tail<typename S::Arguments>::Arguments;
        using Result = typename S::Result;
        add(kind, name, cmdtable::Types<Arguments>::list(), FCmdTypeOf<std::decay_t<Result>>::type(), names);
        last().isData = true;
        last().call = [make](FObject*, const FCmdRow::Values& values) mutable {
            // The name travels after the arguments.
            return cmdtable::call<Result, Arguments>(make, values, std::any_cast<const FNewName&>(values.back()));
        };
        return *this;
    }
    template <class C, class F>
    FCmdTable& addMember(FCmdRow::Kind kind, const char* name, F operation, Names names) {
        using S = cmdtable::Signature<F>;
        constexpr bool takesReceiverFirst = !std::is_member_function_pointer_v<F>;
        using Arguments = typename MemberArguments<S, takesReceiverFirst>::Arguments;
        using Result = typename S::Result;
        add(kind, name, cmdtable::Types<Arguments>::list(), FCmdTypeOf<std::decay_t<Result>>::type(), names);
        last().call = [operation](FObject* receiver, const FCmdRow::Values& values) mutable {
            return cmdtable::call<Result, Arguments>(operation, values, dynamic_cast<C&>(*receiver));
        };
        return *this;
    }
    template <class S, bool takesReceiverFirst>
    struct MemberArguments {
        using Arguments = typename S::Arguments;
    };
    template <class S>
    struct MemberArguments<S, true> {
        using Arguments = typename cmdtable::Tail<typename S::Arguments>::Arguments;
    };

    void add(FCmdRow::Kind kind, const char* name, const std::vector<FCmdType>& types, const FCmdType& returnType,
             Names names);
    FCmdTable& effect(FCmdRow::Effect effect) { return last().effect = effect, *this; }
    FCmdRow& last() { return *mRows.back(); }
    FCmdPresentation& look() { return last().presentation; }

    FClassData* mpOwner;
    std::vector<std::unique_ptr<FCmdRow>> mRows;
    QStringList mHidden;
};

template <class C, class M>
FCmdTable& FCmdTable::plain(const char* name, M place, Names names) {
    using V = std::remove_cvref_t<std::invoke_result_t<M, C&>>;
    const std::function<V&(C&)> find = [place](C& object) -> V& { return std::invoke(place, object); };
    const auto valueIn = [find](const FObject& object) -> const V& {
        return find(const_cast<C&>(dynamic_cast<const C&>(object)));
    };
    add(FCmdRow::Kind::Attribute, name, {FCmdTypeOf<V>::type()}, FCmdTypeOf<void>::type(), names);
    FCmdRow* row = &last();
    row->isData = true;
    row->getter = [valueIn](const FObject* object) { return FCmdTypeOf<V>::handle(valueIn(*object)); };
    row->makeField = [find] { return std::move(FStateFields<C>().template value<V>(find).take().front()); };
    row->copy = [find, valueIn](FObject& to, const FObject& from) { find(dynamic_cast<C&>(to)) = valueIn(from); };
    row->call = [find, row](FObject* receiver, const FCmdRow::Values& values) {
        const V& value = std::any_cast<const V&>(values.front());
        V& present = find(dynamic_cast<C&>(*receiver));
        if (row->mayTake(values, *receiver) && !(present == value)) {
            present = value;
            receiver->setOutOfDate(row->marksClients || receiver->isOutOfDate());
        }
        return FExprBase();
    };
    return *this;
}
