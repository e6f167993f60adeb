#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"
#include "host/core/FObjectList.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <any>
#include <bit>
#include <functional>
#include <memory>
#include <type_traits>
#include <vector>

/**
 * One raw field of a class, as the history keeps it: read without a getter, written back without a setter. What is
 * read shares its data with the object, so that an unchanged field costs next to nothing.
 */
class MERIX_EXPORT FStateField {
 public:
    virtual ~FStateField() = default;

    virtual std::any read(const FObject& object) const = 0;
    virtual void write(FObject& object, const std::any& value) const = 0;
    /** Makes two values that differ smaller, where what they have in common can be left out. */
    virtual void shrink(std::any& before, std::any& after) const {
        Q_UNUSED(before)
        Q_UNUSED(after)
    }
    /** Writes back a value that may be shrunk; `known` is the other one of the two, whole. */
    virtual void restore(FObject& object, const std::any& value, const std::any& known) const {
        Q_UNUSED(known)
        write(object, value);
    }
    virtual bool equal(const std::any& a, const std::any& b) const = 0;
    /** About how many bytes a kept value holds that the model doesn't. */
    virtual std::size_t size(const std::any& value) const = 0;
};

/**
 * Whether an object with the one value is in the same state as with the other: the values are the same object, or plain
 * values that read alike, or lists of such. Objects that refer to others, such as expressions, are the same only if
 * they are identical.
 */
MERIX_EXPORT bool isSameValue(const FExprBase& a, const FExprBase& b);

/** The state of one object: the values of its raw fields in the order of its class. */
class MERIX_EXPORT FState {
 public:
    static FState capture(const FObject& object);
    void restore(FObject& object) const;
    bool equals(const FState& other, const FObject& object) const;
    std::size_t size(const FObject& object) const;

    std::vector<std::any> values;
};

/** Objects that another one owns and that editors change in place: which they are, and the state of each. */
struct MERIX_EXPORT FOwnedState {
    std::vector<FExprBase> objects;
    std::vector<FState> states;

    static FOwnedState capture(std::vector<FExprBase> objects);
    void restoreElements() const;
    bool equals(const FOwnedState& other) const;
    std::size_t size() const;
};

/**
 * About how many bytes a handle keeps. A managed object counts with the step that destroyed it, and a part that belongs
 * to the model not at all.
 */
MERIX_EXPORT std::size_t heldMemory(const FExprBase& handle);

/** The part of a long text that a change replaces. */
struct MERIX_EXPORT FTextChange {
    int before;  //!< characters ahead of it that stay
    int after;   //!< characters after it that stay
    QString middle;

    /** Replaces two different texts by the parts in which they differ. */
    static void shrink(std::any& before, std::any& after);
    /** The complete text of a value; `known` is the other value of the pair. */
    static QString whole(const std::any& value, const std::any& known);
    static bool equal(const std::any& a, const std::any& b);
    static std::size_t size(const std::any& value);
};

/** Builds the list of a class's raw fields; made in a static function of the class, which may name its members. */
template <class C>
class MERIX_EXPORT FStateFields {
 public:
    using After = std::function<void(C&)>;

    /** A member that can be copied and compared. `after` runs when it was written back. */
    template <class V>
    FStateFields& member(V C::*member, After after = nullptr) {
        return value<V>(std::mem_fn(member), std::move(after));
    }
    /** The same for a value that a function finds in the object. */
    template <class V>
    FStateFields& value(std::function<V&(C&)> find, After after = nullptr) {
        mFields.push_back(std::make_unique<MemberField<V>>(std::move(find), std::move(after)));
        return *this;
    }
    /** A text that may be long: a step holds only the part that it changes. */
    FStateFields& text(QString C::*member, After after = nullptr) {
        mFields.push_back(std::make_unique<TextField>(std::mem_fn(member), std::move(after)));
        return *this;
    }
    /** A handle, or a list of handles, on which this object depends. Writing it back registers the object as their
     * client again. */
    template <class V>
    FStateFields& linked(V C::*member, After after = nullptr) {
        return linked<V>(std::mem_fn(member), std::move(after));
    }
    /** The same for a value that a function finds in the object. */
    template <class V>
    FStateFields& linked(std::function<V&(C&)> find, After after = nullptr) {
        mFields.push_back(std::make_unique<LinkedField<V>>(std::move(find), std::move(after)));
        return *this;
    }
    /** A handle on a value that this object owns and depends on: linked, and the value's own fields are kept with it.
     */
    FStateFields& owned(FExprBase C::*member, After after = nullptr) {
        mFields.push_back(std::make_unique<OwnedValueField>(member, std::move(after)));
        return *this;
    }
    /** A list of handles on objects that this one owns; their fields are kept with it. */
    template <class T>
    FStateFields& owned(QList<FExpr<T>> C::*member) {
        mFields.push_back(std::make_unique<OwnedListField<T>>(member));
        return *this;
    }
    /** The same for an object list held by a handle. */
    FStateFields& owned(FExpr<FObjectList> C::*member) {
        mFields.push_back(std::make_unique<OwnedObjectListField>(member));
        return *this;
    }
    std::vector<std::unique_ptr<FStateField>> take() { return std::move(mFields); }

 private:
    static std::size_t sizeOf(const QString& text) { return static_cast<std::size_t>(text.size()) * sizeof(QChar); }
    static std::size_t sizeOf(const QStringList& texts) {
        std::size_t sum = 0;
        for (const QString& text : texts) {
            sum += sizeOf(text);
        }
        return sum;
    }
    static std::size_t sizeOf(const QMap<unsigned int, QString>& texts) { return sizeOf(QStringList(texts.values())); }
    template <class T>
    static std::size_t sizeOf(const QList<FExpr<T>>& list) {
        std::size_t sum = 0;
        for (const FExpr<T>& handle : list) {
            sum += heldMemory(handle);
        }
        return sum;
    }
    template <class V>
    static std::size_t sizeOf(const V& value) {
        if constexpr (std::is_base_of_v<FExprBase, V>) {
            return heldMemory(value);
        } else if constexpr (requires { value.heldMemory(); }) {
            return value.heldMemory();
        } else {
            return sizeof(V);  // NOLINT(bugprone-sizeof-expression): a pointer is kept as such
        }
    }

    template <class V>
    class MemberField : public FStateField {
     public:
        using Find = std::function<V&(C&)>;

        MemberField(Find find, After after) : mFind(std::move(find)), mAfter(std::move(after)) {}
        std::any read(const FObject& object) const override { return V(in(object)); }
        void write(FObject& object, const std::any& value) const override {
            auto& self = static_cast<C&>(object);
            mFind(self) = std::any_cast<const V&>(value);
            if (mAfter) {
                mAfter(self);
            }
        }
        bool equal(const std::any& a, const std::any& b) const override {
            if constexpr (std::is_same_v<V, double>) {
                // Two that aren't a number are the same state, and 0 and -0 aren't.
                return std::bit_cast<quint64>(std::any_cast<V>(a)) == std::bit_cast<quint64>(std::any_cast<V>(b));
            } else {
                return std::any_cast<const V&>(a) == std::any_cast<const V&>(b);
            }
        }
        std::size_t size(const std::any& value) const override { return sizeOf(std::any_cast<const V&>(value)); }

     protected:
        const V& in(const FObject& object) const { return mFind(const_cast<C&>(static_cast<const C&>(object))); }

     private:
        Find mFind;
        After mAfter;
    };

    class TextField : public MemberField<QString> {
     public:
        using MemberField<QString>::MemberField;
        void shrink(std::any& before, std::any& after) const override { FTextChange::shrink(before, after); }
        void restore(FObject& object, const std::any& value, const std::any& known) const override {
            MemberField<QString>::write(object, FTextChange::whole(value, known));
        }
        bool equal(const std::any& a, const std::any& b) const override { return FTextChange::equal(a, b); }
        std::size_t size(const std::any& value) const override { return FTextChange::size(value); }
    };

    template <class V>
    class LinkedField : public MemberField<V> {
     public:
        using MemberField<V>::MemberField;
        void write(FObject& object, const std::any& value) const override {
            for (const FExprBase& handle : handles(this->in(object))) {
                handle.unregisterClient(&object);
            }
            for (const FExprBase& handle : handles(std::any_cast<const V&>(value))) {
                handle.restoreClient(&object);
            }
            MemberField<V>::write(object, value);
        }
        bool equal(const std::any& a, const std::any& b) const override {
            const auto before = handles(std::any_cast<const V&>(a));
            const auto after = handles(std::any_cast<const V&>(b));
            return std::equal(before.begin(), before.end(), after.begin(), after.end(), &isSameValue);
        }

     private:
        static std::vector<FExprBase> handles(const FExprBase& handle) { return {handle}; }
        template <class T>
        static std::vector<FExprBase> handles(const QList<FExpr<T>>& list) {
            return {list.begin(), list.end()};
        }
    };

    class OwnedField : public FStateField {
     public:
        bool equal(const std::any& a, const std::any& b) const override { return owned(a).equals(owned(b)); }
        std::size_t size(const std::any& value) const override { return owned(value).size(); }

     protected:
        static const FOwnedState& owned(const std::any& value) {
            return *std::any_cast<const std::shared_ptr<const FOwnedState>&>(value);
        }
        static std::any keep(std::vector<FExprBase> objects) {
            return std::shared_ptr<const FOwnedState>(
                std::make_shared<FOwnedState>(FOwnedState::capture(std::move(objects))));
        }
    };

    class OwnedValueField : public OwnedField {
     public:
        OwnedValueField(FExprBase C::*member, After after) : mMember(member), mAfter(std::move(after)) {}
        std::any read(const FObject& object) const override {
            return OwnedField::keep({static_cast<const C&>(object).*mMember});
        }
        void write(FObject& object, const std::any& value) const override {
            FExprBase& handle = static_cast<C&>(object).*mMember;
            handle.unregisterClient(&object);
            handle = OwnedField::owned(value).objects.front();
            handle.restoreClient(&object);
            OwnedField::owned(value).restoreElements();
            if (mAfter) {
                mAfter(static_cast<C&>(object));
            }
        }

     private:
        FExprBase C::*mMember;
        After mAfter;
    };

    template <class T>
    class OwnedListField : public OwnedField {
     public:
        explicit OwnedListField(QList<FExpr<T>> C::*member) : mMember(member) {}
        std::any read(const FObject& object) const override {
            const QList<FExpr<T>>& list = static_cast<const C&>(object).*mMember;
            return OwnedField::keep(std::vector<FExprBase>(list.begin(), list.end()));
        }
        void write(FObject& object, const std::any& value) const override {
            QList<FExpr<T>> list;
            for (const FExprBase& element : OwnedField::owned(value).objects) {
                list.append(FExpr<T>(element));
            }
            static_cast<C&>(object).*mMember = list;
            OwnedField::owned(value).restoreElements();
        }

     private:
        QList<FExpr<T>> C::*mMember;
    };

    class OwnedObjectListField : public OwnedField {
     public:
        explicit OwnedObjectListField(FExpr<FObjectList> C::*member) : mMember(member) {}
        std::any read(const FObject& object) const override {
            // The list object comes first: `setValues` creates a new one, and undo restores the old one.
            const FExpr<FObjectList>& list = static_cast<const C&>(object).*mMember;
            std::vector<FExprBase> objects{list};
            if (const FObjectList* live = list.ptr()) {
                objects.insert(objects.end(), live->getObjects().begin(), live->getObjects().end());
            }
            return OwnedField::keep(std::move(objects));
        }
        void write(FObject& object, const std::any& value) const override {
            const std::vector<FExprBase>& objects = OwnedField::owned(value).objects;
            FExpr<FObjectList>& list = static_cast<C&>(object).*mMember;
            list = FExpr<FObjectList>(objects.front());
            if (FObjectList* live = list.ptr()) {
                live->setObjects({objects.begin() + 1, objects.end()});
            }
            OwnedField::owned(value).restoreElements();
        }

     private:
        FExpr<FObjectList> C::*mMember;
    };

    std::vector<std::unique_ptr<FStateField>> mFields;
};
