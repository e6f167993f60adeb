#pragma once

#include "host/core/FExport.h"
#include "host/core/FObject.h"

#include <QHash>
#include <QString>

/**
 * Counted handle on an object, or on a command that stands for an object: an expression.
 *
 * An empty handle holds nothing. A handle on a prototype holds it. A handle on a managed object that has been destroyed
 * gives no object any more, but still compares equal to handles on that same object, and finds it again after undo.
 */
class MERIX_EXPORT FExprBase {
 public:
    FExprBase() = default;
    FExprBase(std::nullptr_t) {}                        // NOLINT(google-explicit-constructor): NULL is an empty handle
    FExprBase(const FObject* object) { take(object); }  // NOLINT(google-explicit-constructor)
    FExprBase(const FExprBase& other) { take(other.mpBlock); }
    FExprBase(FExprBase&& other) noexcept : mpBlock(other.mpBlock) { other.mpBlock = nullptr; }
    ~FExprBase() { release(); }

    FExprBase& operator=(const FExprBase& other);
    FExprBase& operator=(FExprBase&& other) noexcept;

    /** True if nothing was put in. A handle on a destroyed object isn't empty. */
    bool isEmpty() const { return !mpBlock; }
    /** True if an object is there: for an expression the command itself, else what the handle gives. */
    bool isValid() const { return getStored() != nullptr; }
    bool operator!() const { return !isValid(); }
    explicit operator bool() const { return isValid(); }

    /** What was put in, not evaluated; null if it is gone. */
    FObject* getStored() const { return mpBlock ? mpBlock->live() : nullptr; }
    FObject* getExpr() const { return getStored(); }
    /** True if something was put in that is gone. */
    bool isDetached() const { return !isEmpty() && !isValid(); }
    /** True if the handle stands for a command. */
    bool isCmd() const;
    /** The object behind the handle; an expression is brought up to date for it. */
    FObject* getObject() const;
    /** The prototype of the type of what the handle gives; null for an empty handle. */
    const FObject* getType() const;
    bool canSafelyBeUpdated(bool mayReadFiles) const;

    /** The expression's own text; for a value its bare text, for an object its name. */
    QString toString(const FObject* scope = nullptr) const;
    /** The script text that restores the handle; "NULL" for an empty one. */
    QString toHistoryString() const;

    /** Takes an object or expression unchanged. */
    void setExpr(const FExprBase& other) { *this = other; }
    /** Binds an expression's text; the handle is left empty if the text has an unknown name or command. */
    bool resolve(const QString& text);

    /** Makes `client` depend on what the handle holds. False where that would close a cycle. */
    bool registerClient(const FObject* client, bool immediate = false) const;
    void unregisterClient(const FObject* client) const;
    /**
     * Puts `value` in, on which `client` depends from now on instead of what was there. False, with all as it was,
     * where that would close a cycle.
     */
    bool assignFor(const FObject* client, const FExprBase& value);
    /** Restores a link from an earlier state. Skips the cycle check: a half-replayed step may contain a temporary
     * cycle. */
    void restoreClient(const FObject* client) const;

    /** Identity of the object put in, as the most-derived object; that of a destroyed object stays. */
    const void* identity() const { return mpBlock; }
    friend bool operator==(const FExprBase& a, const FExprBase& b) { return a.mpBlock == b.mpBlock; }
    friend bool operator!=(const FExprBase& a, const FExprBase& b) { return a.mpBlock != b.mpBlock; }

 protected:
    void take(const FObject* object) { take(object ? object->getBlock() : nullptr); }
    void take(FObjectBlock* block);
    void release();

 private:
    FObjectBlock* mpBlock = nullptr;
};

inline uint qHash(const FExprBase& handle, uint seed = 0) {
    return ::qHash(reinterpret_cast<quintptr>(handle.identity()), seed);
}
