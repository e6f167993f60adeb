#pragma once

#include "host/core/FClassData.h"
#include "host/core/FExport.h"

#include <QString>

class FExprBase;
class FObjectList;
class FUpdateLinks;

/** Non-zero: each build of a prototype is reported on the standard output. Set from the environment at start. */
MERIX_EXPORT extern int VERBOSE;

/** Number of blanks of one level of indentation in saved text. */
constexpr int TAB = 4;

/**
 * What handles point to. It outlives its object as long as a handle is left, so that a handle knows when its object
 * is gone, and two handles on it remain equal.
 */
struct MERIX_EXPORT FObjectBlock {
    enum class Kind {
        Plain,      //!< dies with its last handle
        Managed,    //!< lives in the model; kept by handles and the history once it has left
        Elsewhere,  //!< owned by somebody else: prototypes, singletons, views
    };

    FObject* object;  //!< null once the object is freed
    quint32 handles;
    Kind kind;
    bool outOfModel;  //!< a managed object that has been destroyed

    /** The object, unless it is freed or has left the model. */
    FObject* live() const { return outOfModel ? nullptr : object; }
};

/**
 * Base of everything that scripts, handles and the update graph can reach.
 *
 * **Kinds.** Plain objects are made with `new` and die with their last handle. Managed ones (FManaged) live in the
 * model. Prototypes, of any class, are made while a prototype flag is set, and are never deleted by a handle.
 *
 * **Update graph.** An object is out of date when something that it was computed from has changed. Links are kept both
 * ways; `update()` recomputes on demand.
 */
class MERIX_EXPORT FObject {
 public:
    static FClassData mClass;
    static bool mInitPrototype;  //!< true while the prototype of a plain class is built

    FObject();
    FObject(const FObject& other);
    FObject& operator=(const FObject& other);
    virtual ~FObject();

    // ---- class pattern; what a class says of itself comes from its FClassData ----
    virtual const FClassData& getClassData() const { return mClass; }
    FClassData& classData() const { return const_cast<FClassData&>(getClassData()); }
    virtual QString getClass() const;
    const FObject* getPrototype() const;
    const FObject* getSuperClass() const;
    virtual bool isNull() const;
    /** True if this object is of the class of `other`, or of one derived from it. */
    bool isTypeOf(const FObject* other) const;
    bool isSuperClassOf(const FObject* other) const;
    bool areCmdsInitialized() const { return classData().mCmdsInitialized; }
    void setCmdsInitialized() const { classData().mCmdsInitialized = true; }
    bool isTypeDocuInitialized() const { return classData().mTypeDocuInitialized; }
    void setTypeDocuInitialized() const { classData().mTypeDocuInitialized = true; }
    unsigned int getSystemFlag() const { return classData().mSystemFlag; }
    void setSystemFlag(unsigned int flag) const { classData().mSystemFlag = flag; }
    /** Registers the class's commands; the second call and all later ones do nothing. */
    void initCmds() const;
    virtual void initTypeDocu() const;
    void addTypeDocu(const QString& text, int area) const;
    /** Adds a text to the documentation of the object's class; see FDocuArea. */
    void addDocu(const QString& text, int area) const { addTypeDocu(text, area); }
    /** The documentation of the object's class. The description ends with the help that the class's windows show. */
    QString getDocuString(int area) const;

    // ---- prototypes ----
    static void addPrototype(const FObject* prototype);
    /** The prototype of a class or command by its class name; null if there is none. */
    static const FObject* getPrototype(const QString& className);
    static const FObject* null() { return mClass.mpNull; }
    static const FObject* initPrototype();

    /** True if the pointer still refers to a managed object of the model. Safe on any address. */
    static bool exists(const FObject* object);

    /** A copy, or null for a class that can't be copied. */
    virtual FObject* clone() const { return nullptr; }

    // ---- texts ----
    /** The value in its bare form: a text without quotes, an object's name. */
    virtual QString toString() const { return QString(); }
    /** The script text that stands for the object in an expression. */
    virtual QString toExpressionString() const { return toString(); }
    /** The script text from which the object can be restored. */
    virtual QString toHistoryString() const { return toExpressionString(); }

    /**
     * The script text by which a kept expression finds the object, where its own text wouldn't be readable in a saved
     * project; empty where it is. For an object that no text can find, `fault` gets the reason.
     */
    virtual QString getKeptText(QString& fault) const {
        Q_UNUSED(fault)
        return {};
    }

    // ---- what the object stands for ----
    virtual FObjectList* castToObjectList() { return nullptr; }
    /** True for commands: a handle on one stands for the command's result. */
    virtual bool isCmd() const { return false; }
    /** The object itself; for a command the object of its result, brought up to date. May be null. */
    virtual FObject* evaluate() const { return const_cast<FObject*>(this); }
    /** True for objects that have a value, which may change, such as parameters. */
    virtual bool holdsValue() const { return false; }
    /** The object's value in a calculation: for a parameter its number, else the object itself. */
    virtual FObject* getValueObject() const { return const_cast<FObject*>(this); }
    /** The type of what `evaluate` gives, as far as it is known without evaluating: a prototype, never null. */
    virtual const FObject* getEvaluatedType() const { return getPrototype(); }
    /**
     * Whether evaluating is safe: no program runs and no dialog opens; files are read only with `mayReadFiles`. Asks
     * everything that would be evaluated, once each, without recursion.
     */
    bool canSafelyBeUpdated(bool mayReadFiles) const;

    // ---- update graph ----
    /** True: marks this object and all that depend on it, once each. False: clears the mark. */
    virtual void setOutOfDate(bool outOfDate) const;
    bool isOutOfDate() const { return mOutOfDate; }
    /** Brings the object up to date if it isn't; suppliers first, without recursion over them. */
    bool update() const;
    /** Recomputes. Overrides end in the base's. */
    virtual bool doUpdate() const { return true; }
    void setUpdateOnDemand(bool onDemand) { mImmediateUpdate = !onDemand; }
    bool isUpdateOnDemand() const { return !mImmediateUpdate; }
    void setImediateUpdate(bool immediate) { setUpdateOnDemand(!immediate); }
    /** True holds all immediate updates back until the matching call with false; calls are counted. */
    static void blockImmediateUpdate(bool block);
    /**
     * Makes this object depend on `supplier`; links are counted. Refused, with false, where it would close a cycle.
     */
    bool addSupplier(const FObject* supplier) const;
    void removeSupplier(const FObject* supplier) const;
    /** Whether a mark of `supplier` reaches this object. */
    bool dependsOn(const FObject* supplier) const;
    /** Whether `client` depends on this object: directly, or with `recursive` also through others. */
    bool hasClient(const FObject* client, bool recursive) const;
    /** The objects that depend on this one directly, in the order in which they were linked. */
    std::vector<FObject*> getClients() const;
    std::vector<FObject*> getSuppliers() const;
    /**
     * All objects of the model that depend on this one, at any distance, and are of one of the types, given as
     * prototypes: what a mark reaches, through kept commands and from entries to their configuration. The nearest come
     * first.
     */
    std::vector<FObject*> getClientsCmdHelper(const std::vector<const FObject*>& types) const;
    /**
     * All objects of those types that this one is linked to, at any distance, through kept commands. What a
     * configuration's entries depend on doesn't count as a supplier of the configuration.
     */
    std::vector<FObject*> getSuppliersCmdHelper(const std::vector<const FObject*>& types) const;

    FObjectBlock* getBlock() const { return mpBlock; }

 protected:
    /** True while a prototype of any family is being built: constructors then take their short path. */
    static bool isInitializingPrototype();
    /** Takes the object out of the reach of handles: neither kept nor deleted by them from now on. */
    void setOwnedElsewhere();
    /** `canSafelyBeUpdated` of this object alone, without what it evaluates. */
    virtual bool isSafeAlone(bool mayReadFiles) const;
    /** What evaluating this object evaluates. */
    virtual std::vector<FExprBase> getOperands() const;
    /** The object that this one is a part of: it goes out of date with each of its parts, without being linked. */
    virtual FObject* getWhole() const { return nullptr; }
    /** Called once for each object that becomes out of date. */
    virtual void becameOutOfDate() const {}
    /** True if `doUpdate` decides itself which suppliers it needs. */
    virtual bool updatesSuppliersItself() const { return false; }

    bool mImmediateUpdate = false;  //!< a class may keep it in the history

 private:
    friend class FUpdateGraph;

    FObjectBlock* mpBlock;
    mutable FUpdateLinks* mpLinks = nullptr;
    mutable bool mOutOfDate = false;
    mutable bool mUpdating = false;
};
