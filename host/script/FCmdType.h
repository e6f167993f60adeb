#pragma once

#include "host/core/FBool.h"
#include "host/core/FEnum.h"
#include "host/core/FExport.h"
#include "host/core/FNull.h"
#include "host/core/FNumber.h"
#include "host/core/FObjectList.h"
#include "host/core/FString.h"

#include <any>
#include <type_traits>

/** An argument or result type of a command: how it is spelled, which class it is of, and how a handle becomes one. */
struct MERIX_EXPORT FCmdType {
    /** Fills `value` with what the operation takes; false if the handle can't be read as the type. */
    using Convert = bool (*)(const FExprBase& handle, std::any& value);

    QString script;                   //!< in the names of commands
    QString docu;                     //!< in documentation keys
    const FClassData* cls = nullptr;  //!< null for no result
    Convert convert = nullptr;
    bool isHandle = false;   //!< script `NULL` can stand for it
    bool isKept = false;     //!< stays an expression and isn't evaluated
    bool takesRest = false;  //!< takes all further arguments
};

/** An expression that isn't evaluated: the operation keeps it, so that it follows what it names. */
struct MERIX_EXPORT FKeptExpression {
    FExprBase expression;

    /** The expression; empty for script `NULL`. */
    FExprBase orEmpty() const;
};

/** A list whose elements stay expressions as far as they are written as such. */
struct MERIX_EXPORT FKeptList {
    FExpr<FObjectList> list;
};

/** The value that a handle stands for: a parameter's number rather than the parameter. */
MERIX_EXPORT FObject* valueObject(const FExprBase& handle);

/** C++ types as script types. Specialised for all that operations take and return. */
template <class T>
struct FCmdTypeOf;

namespace cmdtype {

/** A whole number in a double, or in an object that counts as one; false for 1.5 and for what isn't a number. */
MERIX_EXPORT bool wholeNumber(const FExprBase& handle, double least, double most, double& number);
MERIX_EXPORT bool isScriptNull(const FExprBase& handle);

inline FCmdType plain(const char* script, const FClassData& cls, FCmdType::Convert convert) {
    return {QString::fromLatin1(script), QString::fromLatin1(script), &cls, convert};
}

}  // namespace cmdtype

template <>
struct FCmdTypeOf<void> {
    static FCmdType type() { return {QStringLiteral("void"), QStringLiteral("void")}; }
};

template <>
struct FCmdTypeOf<QString> {
    static FCmdType type() {
        return cmdtype::plain("string", FString::mClass, [](const FExprBase& handle, std::any& value) {
            const auto* text = dynamic_cast<const FString*>(valueObject(handle));
            value = text ? text->getValue() : QString();
            return text != nullptr;
        });
    }
    static FExprBase handle(const QString& text) { return FExprBase(new FString(text)); }
};

template <>
struct FCmdTypeOf<double> {
    static FCmdType type() {
        return cmdtype::plain("double", FDouble::mClass, [](const FExprBase& handle, std::any& value) {
            const auto* number = dynamic_cast<const FDouble*>(valueObject(handle));
            value = number ? number->toDouble() : 0.0;
            return number != nullptr;
        });
    }
    static FExprBase handle(double number) { return FExprBase(new FDouble(number)); }
};

template <>
struct FCmdTypeOf<int> {
    static FCmdType type() {
        return cmdtype::plain("int", FInteger::mClass, [](const FExprBase& handle, std::any& value) {
            double number = 0;
            const bool whole = cmdtype::wholeNumber(handle, -2147483648.0, 2147483647.0, number);
            value = static_cast<int>(number);
            return whole;
        });
    }
    static FExprBase handle(int number) { return FExprBase(new FInteger(number)); }
};

template <>
struct FCmdTypeOf<unsigned int> {
    static FCmdType type() {
        return cmdtype::plain("unsigned", FUnsigned::mClass, [](const FExprBase& handle, std::any& value) {
            double number = 0;
            const bool whole = cmdtype::wholeNumber(handle, 0, 4294967295.0, number);
            value = static_cast<unsigned int>(number);
            return whole;
        });
    }
    static FExprBase handle(unsigned int number) { return FExprBase(new FUnsigned(number)); }
};

template <>
struct FCmdTypeOf<bool> {
    static FCmdType type() {
        return cmdtype::plain("bool", FBool::mClass, [](const FExprBase& handle, std::any& value) {
            const auto* flag = dynamic_cast<const FBool*>(valueObject(handle));
            value = flag && flag->getValue();
            return flag != nullptr;
        });
    }
    static FExprBase handle(bool flag) { return FExprBase(new FBool(flag)); }
};

template <>
struct FCmdTypeOf<FExpr<FObject>> {
    static FCmdType type() {
        return {QStringLiteral("FObject"), QStringLiteral("FObject"), &FObject::mClass,
                [](const FExprBase& handle, std::any& value) {
                    value = FExpr<FObject>(handle.getObject());
                    return handle.getObject() != nullptr;
                },
                true};
    }
    static FExprBase handle(const FExprBase& handle) { return handle; }
};

namespace cmdtype {

/** The class in the names of commands: all enumerations appear as FEnum. */
template <class T>
QString nameOf() {
    if constexpr (std::is_base_of_v<FEnumBase, T>) {
        return QStringLiteral("FEnum");
    } else {
        return T::mClass.getName();
    }
}

/** The object of a handle as a T, converted where a T can be made of it; empty if it can't. */
template <class T>
FExpr<T> objectOf(const FExprBase& handle) {
    if constexpr (FConversion<T>::exists) {
        return FExpr<T>(static_cast<const FObject*>(valueObject(handle)));
    } else {
        return FExpr<T>(static_cast<const FObject*>(dynamic_cast<T*>(handle.getObject())));
    }
}

}  // namespace cmdtype

template <class T>
struct FCmdTypeOf<FExpr<T>> {
    static FCmdType type() {
        const QString name = cmdtype::nameOf<T>();
        return {name, name, &T::mClass,
                [](const FExprBase& handle, std::any& value) {
                    const FExpr<T> object = cmdtype::objectOf<T>(handle);
                    value = object;
                    return !object.isEmpty();
                },
                true};
    }
    static FExprBase handle(const FExprBase& handle) { return handle; }
};

/** A C++ enumeration with a script type. */
template <class E>
requires std::is_enum_v<E>
struct FCmdTypeOf<E> {
    static FCmdType type() {
        const QString name = cmdtype::nameOf<FEnum<E>>();
        return {name, name, &FEnum<E>::mClass, [](const FExprBase& handle, std::any& value) {
                    const FExpr<FEnum<E>> object = cmdtype::objectOf<FEnum<E>>(handle);
                    value = object ? object->get() : E();
                    return static_cast<bool>(object);
                }};
    }
    static FExprBase handle(E value) { return FExprBase(new FEnum<E>(value)); }
};

template <class T>
requires std::is_base_of_v<FObject, T>
struct FCmdTypeOf<T*> : FCmdTypeOf<FExpr<T>> {
    static FExprBase handle(const T* object) { return FExprBase(static_cast<const FObject*>(object)); }
};

/** A list of objects of one class. `NULL` elements are empty handles. */
template <class T>
struct FCmdTypeOf<QList<FExpr<T>>> {
    static FCmdType type() {
        return {
            T::mClass.getName() + QStringLiteral("Container"), QStringLiteral("FCONTAINER"), &FObjectList::mClass,
            [](const FExprBase& handle, std::any& value) {
                QList<FExpr<T>> list;
                FObject* object = handle.getObject();
                const FObjectList* source = object ? object->castToObjectList() : nullptr;
                bool fits = source != nullptr;
                for (const FExpr<FObject>& element : source ? source->getObjects() : std::vector<FExpr<FObject>>()) {
                    auto* typed = dynamic_cast<T*>(element.getObject());
                    fits = fits && (typed || cmdtype::isScriptNull(element));
                    list.append(FExpr<T>(static_cast<const FObject*>(typed)));
                }
                value = list;
                return fits;
            }};
    }
    static FExprBase handle(const QList<FExpr<T>>& list) {
        auto* objects = new FObjectList(T::null());
        for (const FExpr<T>& element : list) {
            objects->add(element);
        }
        return FExprBase(objects);
    }
};

template <>
struct FCmdTypeOf<QStringList> {
    static FCmdType type() {
        return {
            QStringLiteral("stringContainer"), QStringLiteral("FCONTAINER"), &FObjectList::mClass,
            [](const FExprBase& handle, std::any& value) {
                QStringList texts;
                FObject* object = handle.getObject();
                const FObjectList* source = object ? object->castToObjectList() : nullptr;
                bool fits = source != nullptr;
                for (const FExpr<FObject>& element : source ? source->getObjects() : std::vector<FExpr<FObject>>()) {
                    const auto* basic = dynamic_cast<const FBasicType*>(valueObject(element));
                    fits = fits && basic;
                    texts.append(basic ? basic->toPlainString() : QString());
                }
                value = texts;
                return fits;
            }};
    }
    static FExprBase handle(const QStringList& texts) {
        auto* objects = new FObjectList(FString::null());
        for (const QString& text : texts) {
            objects->add(FExpr<FObject>(new FString(text)));
        }
        return FExprBase(objects);
    }
};

namespace cmdtype {

/** A list whose elements are converted one by one. */
template <class T>
bool listOf(const FExprBase& handle, std::any& value) {
    QList<T> list;
    FObject* object = handle.getObject();
    const FObjectList* source = object ? object->castToObjectList() : nullptr;
    bool fits = source != nullptr;
    const FCmdType element = FCmdTypeOf<T>::type();
    for (const FExpr<FObject>& each : source ? source->getObjects() : std::vector<FExpr<FObject>>()) {
        std::any converted;
        fits = element.convert(each, converted) && fits;
        list.append(std::any_cast<T>(converted));
    }
    value = list;
    return fits;
}

template <class T>
FExprBase listHandle(const FObject* prototype, const QList<T>& list) {
    auto* objects = new FObjectList(prototype);
    for (const T& each : list) {
        objects->add(FExpr<FObject>(FCmdTypeOf<T>::handle(each).getObject()));
    }
    return FExprBase(objects);
}

}  // namespace cmdtype

template <>
struct FCmdTypeOf<QList<int>> {
    static FCmdType type() {
        return {QStringLiteral("intContainer"), QStringLiteral("FCONTAINER"), &FObjectList::mClass,
                &cmdtype::listOf<int>};
    }
    static FExprBase handle(const QList<int>& list) { return cmdtype::listHandle(FInteger::null(), list); }
};

/** A list of lists of texts. A text counts as a list of one. */
template <>
struct FCmdTypeOf<QList<QStringList>> {
    static FCmdType type() {
        return {QStringLiteral("stringContainerContainer"), QStringLiteral("FCONTAINER"), &FObjectList::mClass,
                [](const FExprBase& handle, std::any& value) {
                    QList<QStringList> lists;
                    FObject* object = handle.getObject();
                    const FObjectList* source = object ? object->castToObjectList() : nullptr;
                    bool fits = source != nullptr;
                    for (const FExpr<FObject>& each : source ? source->getObjects() : std::vector<FExpr<FObject>>()) {
                        std::any texts;
                        const auto* text = dynamic_cast<const FString*>(valueObject(each));
                        fits = fits && (text || FCmdTypeOf<QStringList>::type().convert(each, texts));
                        lists.append(text                ? QStringList(text->getValue())
                                     : texts.has_value() ? std::any_cast<QStringList>(texts)
                                                         : QStringList());
                    }
                    value = lists;
                    return fits;
                }};
    }
    static FExprBase handle(const QList<QStringList>& list) { return cmdtype::listHandle(FObjectList::null(), list); }
};

template <>
struct FCmdTypeOf<FKeptExpression> {
    static FCmdType type() {
        FCmdType type{QStringLiteral("FObject"), QStringLiteral("expression"), &FObject::mClass,
                      [](const FExprBase& handle, std::any& value) {
                          value = FKeptExpression{handle};
                          return handle.isValid();
                      }};
        type.isKept = true;
        return type;
    }
};

template <>
struct MERIX_EXPORT FCmdTypeOf<FKeptList> {
    static FCmdType type();
};

/** All further arguments, evaluated. */
template <>
struct FCmdTypeOf<std::vector<FExprBase>> {
    static FCmdType type() {
        FCmdType type{QStringLiteral("FObjects"), QStringLiteral("FObjects"), &FObject::mClass};
        type.takesRest = true;
        return type;
    }
};
