#pragma once

#include "host/core/FEnumBase.h"
#include "host/core/FExport.h"

/**
 * The script type of the C++ enumeration E. Its table and its class data are specialised beside E; a value made
 * without an argument has the default.
 */
template <class E>
class MERIX_EXPORT FEnum : public FClass<FEnum<E>, FEnumBase> {
    using Base = FClass<FEnum<E>, FEnumBase>;

 public:
    static FClassData mClass;
    static const FEnumTable& table();

    FEnum() : Base(table().getDefaultValue()) {}
    FEnum(E value) : Base(static_cast<unsigned int>(value)) {}  // NOLINT(google-explicit-constructor)
    explicit FEnum(const QString& text) : Base(getValueForString(text)) {}
    FObject* clone() const override { return new FEnum(get()); }

    E get() const { return static_cast<E>(this->getValue()); }
    static unsigned int getValueForString(const QString& text) { return FEnumBase::numberOf(table(), text); }

    bool operator==(const QString& text) const { return this->getValue() == getValueForString(text); }
    bool operator!=(const QString& text) const { return !(*this == text); }
    bool operator==(const FEnum& other) const { return this->getValue() == other.getValue(); }

 protected:
    const FEnumTable* getTable() const override { return &table(); }
};

template <class E>
FObject* FConversion<FEnum<E>>::from(const FObject& value) {
    FExpr<FEnum<E>> made(new FEnum<E>);
    auto* object = static_cast<FEnum<E>*>(made.getStored());
    return object->takeValue(value) ? new FEnum<E>(object->get()) : nullptr;
}
