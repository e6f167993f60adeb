#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"
#include "host/core/FObjectList.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <any>
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
    virtual bool equal(const std::any& a, const std::any& b) const = 0;
    /** About how many bytes a kept value holds that the model doesn't. */
    virtual std::size_t size(const std::any& value) const = 0;
};

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

/** Builds the list of a class's raw fields; made in a static function of the class, which may name its members. */
template <class C>
class MERIX_EXPORT FStateFields {
 public:
    using After = std::function<void(C&)>;

    /** A member that can be copied and compared. `after` runs when it was written back. */
    template <class V>
    FStateFields& member(V C::*member, After after = nullptr) {
        mFields.push_back(std::make_unique<MemberField<V>>(member, std::move(after)));
        return *this;
    }
    /** A handle, or a list of handles, on which this object depends: it is made their client anew when written back. */
    template <class V>
    FStateFields& linked(V C::*member, After after = nullptr) {
        mFields.push_back(std::make_unique<LinkedField<V>>(member, std::move(after)));
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
        MemberField(V C::*member, After after) : mMember(member), mAfter(std::move(after)) {}
        std::any read(const FObject& object) const override { return static_cast<const C&>(object).*mMember; }
        void write(FObject& object, const std::any& value) const override {
            auto& self = static_cast<C&>(object);
            self.*mMember = std::any_cast<const V&>(value);
            if (mAfter) {
                mAfter(self);
            }
        }
        bool equal(const std::any& a, const std::any& b) const override {
            return std::any_cast<const V&>(a) == std::any_cast<const V&>(b);
        }
        std::size_t size(const std::any& value) const override { return sizeOf(std::any_cast<const V&>(value)); }

     private:
        V C::*mMember;
        After mAfter;
    };

    template <class V>
    class LinkedField : public MemberField<V> {
     public:
        LinkedField(V C::*member, After after) : MemberField<V>(member, std::move(after)), mMember(member) {}
        void write(FObject& object, const std::any& value) const override {
            for (const FExprBase& handle : handles(static_cast<const C&>(object).*mMember)) {
                handle.unregisterClient(&object);
            }
            for (const FExprBase& handle : handles(std::any_cast<const V&>(value))) {
                handle.restoreClient(&object);
            }
            MemberField<V>::write(object, value);
        }

     private:
        static std::vector<FExprBase> handles(const FExprBase& handle) { return {handle}; }
        template <class T>
        static std::vector<FExprBase> handles(const QList<FExpr<T>>& list) {
            return {list.begin(), list.end()};
        }

        V C::*mMember;
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
            // The list itself stands first: `setValues` makes a new one, and undo brings back the old.
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
