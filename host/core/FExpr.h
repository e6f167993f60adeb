#pragma once

#include "host/core/FConversion.h"
#include "host/core/FExport.h"
#include "host/core/FExprBase.h"
#include "host/core/objectCast.h"

/** A handle on an object of class T, or on an expression that gives one. */
template <class T>
class MERIX_EXPORT FExpr : public FExprBase {
 public:
    FExpr() = default;
    FExpr(std::nullptr_t) {}                                      // NOLINT(google-explicit-constructor)
    FExpr(const FObject* object) { convert(FExprBase(object)); }  // NOLINT(google-explicit-constructor)
    FExpr(const T* object)                                        // NOLINT(google-explicit-constructor)
        requires(!std::is_same_v<T, FObject>)
        : FExprBase(static_cast<const FObject*>(object)) {}
    FExpr(const FExpr&) = default;
    FExpr(FExpr&&) noexcept = default;
    FExpr(const FExprBase& other) { convert(other); }  // NOLINT(google-explicit-constructor)
    ~FExpr() = default;

    FExpr& operator=(const FExpr&) = default;
    FExpr& operator=(FExpr&&) noexcept = default;
    FExpr& operator=(const FExprBase& other) {
        convert(other);
        return *this;
    }
    FExpr& operator=(const FObject* object) {
        convert(FExprBase(object));
        return *this;
    }
    /** Binds an expression's text, as `resolve`. */
    FExpr& operator=(const QString& text) {
        FExprBase bound;
        bound.resolve(text);
        convert(bound);
        return *this;
    }

    /** The object of the handle, or null. A converted one lives as long as the handle, or until the next call. */
    T* ptr() const {
        if constexpr (FConversion<T>::exists) {
            return convertedPtr();
        } else {
            return objectCast<T>(getObject());
        }
    }
    T* operator->() const { return ptr(); }
    bool operator!() const { return !static_cast<bool>(*this); }
    explicit operator bool() const { return isCmd() ? isValid() : ptr() != nullptr; }

    const FObject* getNativeType() const { return T::null(); }

 private:
    struct Nothing {};
    static constexpr bool converts = FConversion<T>::exists;

    T* convertedPtr() const {
        const FObject* object = getObject();
        const FObject* value = object ? object->getValueObject() : nullptr;
        if (T* own = objectCast<T>(const_cast<FObject*>(value))) {
            return own;
        }
        mConverted = FExprBase(value ? FConversion<T>::from(*value) : nullptr);
        return static_cast<T*>(mConverted.getStored());
    }

    // What a name or a literal gives is known at once; an expression of a wider type is decided when it is evaluated.
    void convert(const FExprBase& other) {
        if constexpr (converts) {
            const FObject* stored = other.getStored();
            const bool isTaken = !stored || objectCast<T>(stored) || stored->isCmd() || stored->holdsValue();
            FExprBase::operator=(isTaken ? other : FExprBase(FConversion<T>::from(*stored)));
            return;
        }
        const FObject* type = other.getType();
        const bool fits = !type || type->isTypeOf(T::null()) || (other.isCmd() && T::null()->isTypeOf(type)) ||
                          objectCast<T>(other.getStored());
        FExprBase::operator=(fits ? other : FExprBase());
    }

    [[no_unique_address]] mutable std::conditional_t<converts, FExprBase, Nothing> mConverted;
};
