#pragma once

#include "host/core/FExport.h"
#include "host/script/FCmdTable.h"

#include <QByteArray>
#include <QHash>
#include <QSet>

#include <deque>

/** All commands: which there are, which are hidden for a class, and which a name stands for. */
class MERIX_EXPORT FCmdManager {
 public:
    static FCmdManager* instance();

    /** Fills the class's table and makes the prototypes of its commands. */
    void addTable(FClassData& data);
    /** The table of the class's own commands; null if it has none. */
    const FCmdTable* tableOf(const FClassData& data) const;
    /** Makes the class's commands known under their names, and hides those that the table says. */
    void registerTable(FClassData& data);

    /** Hides an inherited command for a class. A null prototype has no effect. */
    void hide(const FObject* classPrototype, const FObject* commandPrototype);
    bool isHidden(const FClassData& data, const FCmdRow& row) const;

    /** The commands of that name on objects of the class, nearest class first, without hidden ones. */
    std::vector<const FCmdRow*> findMembers(const FClassData& data, const QString& name) const;
    std::vector<const FCmdRow*> findGlobals(const QString& name) const { return mGlobals.value(name); }
    std::vector<const FCmdRow*> findCreators(const QString& name) const { return mCreators.value(name); }
    /** The member commands of that name of all classes. */
    std::vector<const FCmdRow*> findMembersOfAnyClass(const QString& name) const { return mMembers.value(name); }
    /** All member commands on objects of the class, those of its bases first, without commands hidden for the class. */
    std::vector<const FCmdRow*> membersOf(const FClassData& data) const;
    /** Prototypes of the attributes of the receiver's class, those of its bases first, without hidden commands. */
    std::vector<const FObject*> getAttributesByReceiver(const FObject* receiver) const;
    /** The creator of objects of exactly that class; null if there is none. */
    const FCmdRow* creatorOf(const FClassData& data) const;

    /** All rows in load order. */
    const std::vector<const FCmdRow*>& getRows() const { return mRows; }
    QStringList globalNames() const { return QStringList(mGlobals.keys()); }
    QStringList creatorNames() const { return QStringList(mCreators.keys()); }
    /** All member names of a class, hidden ones left out. */
    QStringList memberNames(const FClassData& data) const;

    /** The names that tables hide but no command has, in most cases a misspelling. */
    QStringList hiddenUnknownNames() const;

    /** What to say of a name that no command has, with the nearest known one. */
    QString unknownMember(const FClassData& data, const QString& name) const;
    QString unknownCreator(const QString& name) const;
    QString unknownGlobal(const QString& name) const;
    QString unknownMemberOfAnyClass(const QString& name) const;

 private:
    /** The commands on objects of a class, nearest class first, without hidden ones. */
    std::vector<const FCmdRow*> visibleMembers(const FClassData& data) const;
    void addPrototype(FCmdRow& row);

    QHash<const FClassData*, std::shared_ptr<FCmdTable>> mTables;
    QHash<const FClassData*, QSet<const FObject*>> mHidden;
    QHash<QString, std::vector<const FCmdRow*>> mGlobals;
    QHash<QString, std::vector<const FCmdRow*>> mCreators;
    QHash<QString, std::vector<const FCmdRow*>> mMembers;
    std::vector<const FCmdRow*> mRows;
    std::deque<QByteArray> mClassNames;  // of the command classes, which keep pointers to them
};

/** ` (did you mean "name"?)`, or nothing if no known name is near. */
MERIX_EXPORT QString didYouMean(const QString& name, const QStringList& known);
