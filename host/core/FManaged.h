#pragma once

#include "host/core/FClass.h"
#include "host/core/FExport.h"
#include "host/core/FExpr.h"
#include "host/core/FRecorded.h"
#include "host/core/FStateField.h"

#include <QList>
#include <QMap>
#include <QString>

class QTextStream;

/**
 * An object of the model: it has a name, takes part in undo, and is saved in the project.
 *
 * It is in the model from `registerObject` until `FManaged::destroy`. A destroyed object is kept by the history and by
 * handles, and the same object comes back on undo, so destructors only free; what else has to happen when an object
 * goes is described at `leaveModel`.
 */
class MERIX_EXPORT FManaged : public FClass<FManaged, FRecorded> {
 public:
    static FClassData mClass;
    static bool mInitPrototype;  //!< true while the prototype of a managed class is built

    explicit FManaged(const QString& name = QString());

    const QString& getName() const { return mName; }
    /** Renames; the name is made legal, and unique among the objects of the model. Returns the object. */
    virtual FManaged* setName(const QString& name);
    /** Above 1: not listed among the objects that a user made. */
    int getSystemLevel() const { return mSystemLevel; }
    /** Number of the object, ascending in the order of creation; 0 before it is registered. */
    int getDbId() const { return mDbId; }
    /** Gives the object, read from a project, the number that it was saved with; at any other time nothing happens. */
    bool restoreDbId(int id);

    /** Brings the object into the model. One without a name gets one made from its class. */
    void registerObject();
    /** Takes the object out of the model; `false` if it isn't there. The flag says whether its dependants are notified.
     */
    static bool destroy(FManaged* object, bool tellClients = true);
    bool isInModel() const { return mInModel; }
    bool isRecorded() const override { return mInModel; }
    FManaged* getOwner() const override { return const_cast<FManaged*>(this); }
    /** The object during whose parent registration this one was registered; null if there was none. */
    const FObject* getParent() const { return mParent.getStored(); }

    /** Whether the object belongs to what a project saves. */
    virtual void setInProject(bool inProject);
    bool isInProject() const { return mInProject; }
    /** Whether the object belongs to the user's own configuration rather than to a project. */
    virtual void setInUserConfig(bool inUserConfig);
    bool isInUserConfig() const { return mInUserConfig; }
    /** A default object comes with the program and isn't the user's. */
    bool isDefault() const { return mDefault; }
    void setDefault(bool isDefault);
    /** Whether the object lives in a configuration of its own rather than in the scope that is saved. */
    bool hasConfiguration() const { return static_cast<bool>(mConfigurationHandle); }
    void setConfigurationHandle(const FExpr<FManaged>& configuration);

    /** Documentation that a user has written on the object, by area. */
    void addDocu(const QString& text, unsigned int area);
    const QMap<unsigned int, QString>& getDocu() const { return mDocu; }

    /**
     * Writes the object as the script text from which its creator restores it.
     * @param indent   levels of indentation
     * @param inScope  false if the text is outside the object's scope: the creator of an object with a
     *                 configuration of its own is then marked with "&"
     * @param flag     whether the text keeps the object's number, as a project does
     */
    virtual void saveScopeManner(QTextStream& stream, unsigned int indent, bool inScope, bool flag) const;
    /** Writes a line for each attribute; the attributes are command prototypes, as the command manager gives them. */
    void saveAttributes(QTextStream& stream, const std::vector<const FObject*>& attributes, unsigned int indent,
                        bool flag) const;

    /** Commands that a saved text holds beside the attributes, as `name(arguments)`. */
    virtual QStringList furtherSavedCommands() const { return {}; }

    /** The objects that belong to this one in the eyes of a user: a tree of objects shows them below it. */
    virtual QList<FManaged*> getParts() const { return {}; }
    /** A double click on the object in a tree of objects; true if that was all, false for the usual editor. */
    virtual bool doubleClickedInTree() { return false; }

    QString toString() const override { return mName; }

    /** Takes over the documentation and the flags. Name, number and membership in the model stay. */
    FManaged& operator=(const FManaged& other);

 protected:
    /** As assignment, and takes the name. The copy isn't in the model. */
    FManaged(const FManaged& other);
    /** Takes over what a clone shares with its source: the documentation. */
    void init(const FManaged* other);
    /** Takes over the attributes that a class declares in its command table as copied. */
    void copyAttributes(FClassData& ofClass, const FManaged& other);
    /** The object is about to change, or has: it becomes part of the open step. */
    void recordChange();
    /** What goes with the object when it leaves: called while it is still whole, also by redo. */
    virtual void leaveModel() {}
    /** The mirror, called when it was registered and by undo. */
    virtual void enterModel() {}
    /** Marks what depends on the object, which is gone. */
    virtual void tellGone() const;
    /** Called when undo can no longer bring the object back. Drops handles that could form a reference cycle with it.
     */
    virtual void letGo() {}

    int mSystemLevel = 0;

 private:
    friend class FHistory;

    static std::vector<std::unique_ptr<FStateField>> fields();
    void enter();
    void leave();
    void holdByStep(bool hold);
    void end();
    void renamed();

    QString mName;
    QString mKnownName;  //!< the name under which the object manager knows the object
    int mDbId = 0;
    bool mInModel = false;
    bool mLeaving = false;
    int mHeldBySteps = 0;  //!< steps of the history that can bring the object back
    bool mInProject = true;
    bool mInUserConfig = false;
    bool mDefault = false;
    FExpr<FManaged> mConfigurationHandle;
    FExprBase mParent;
    QMap<unsigned int, QString> mDocu;
};

/** Objects made by a registration in between count as children of `parent`, until `stopParentReg`. */
MERIX_EXPORT void startParentReg(const FObject* parent);
MERIX_EXPORT void stopParentReg();
/** Destroys the children, last first. */
MERIX_EXPORT void destroyChildrenOf(const FObject* parent);
/** The parent of the registration in progress, or null. */
MERIX_EXPORT const FObject* currentParentReg();
