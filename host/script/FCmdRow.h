#pragma once

#include "host/core/FExport.h"
#include "host/core/FStateField.h"
#include "host/script/FCmdType.h"

#include <QStringList>

#include <vector>

/** One argument of a command. */
struct MERIX_EXPORT FCmdArgument {
    FCmdType type;
    QString name;         //!< documented name; with its default, if it has one, as in "row=0"
    FExprBase byDefault;  //!< empty if the argument has to be given
};

/** How the user interface presents a command. The defaults apply where the table sets nothing. */
struct MERIX_EXPORT FCmdPresentation {
    QString attrName;  //!< label of the attribute
    QString category;  //!< group of attributes
    /** Script expression for when the attribute is required, with the object named `receiver`; empty for never. */
    QString attrRequiredCmd;
    QString menuEntry;  //!< text of its menu entry; empty for none
    int menuPlace = 0;  //!< order of the menu entries
    QString menuIcon;
    unsigned int cmdFlags = 0;
    unsigned int userLevel = 0;   //!< level from which the user sees it
    unsigned int systemFlag = 0;  //!< bits that a user interface can filter by
    double weight = 0;            //!< order of attributes in their category, ascending
    bool attrAsExpr = true;       //!< edited as an expression
    bool needsGuiReinit = false;  //!< the editor has to be rebuilt after a change
    bool readOnly = false;
    bool hidden = false;
    bool selectOnExec = true;  //!< whether the object that a creator made from a menu becomes the selection
};

/**
 * One command as data. From it come the command object and its prototype under its class name, the conversion of
 * arguments, the action on selection sets, the current value and the saved form of an attribute, the documentation
 * keys and the reference.
 */
class MERIX_EXPORT FCmdRow {
 public:
    enum class Kind { Create, CreateEntity, Attribute, Member, Global };
    /** What its execution may do. Only the first two may appear in an expression that is kept. */
    enum class Effect { Pure, ReadsFiles, Acts };
    using Values = std::vector<std::any>;
    using Call = std::function<FExprBase(FObject* receiver, const Values& values)>;
    using Getter = std::function<FExprBase(const FObject* object)>;
    using Sources = std::function<std::vector<FExprBase>(FObject* receiver, const Values& values)>;

    Kind kind = Kind::Member;
    Effect effect = Effect::Acts;
    QString name;
    QString method;               //!< the operation's name where it differs from the script name
    FClassData* owner = nullptr;  //!< the receiver's class; for a global command null if it has no receiver
    std::vector<FCmdArgument> arguments;
    FCmdType returnType;
    Call call;
    Sources sources;  //!< the parts of the receiver that the result is read from; null: the receiver as a whole
    Getter getter;    //!< for attributes: the current value
    std::function<QString(const FObject*)> creatorArguments;  //!< for creators: the arguments of the saved form
    FCmdPresentation presentation;
    bool isData = false;       //!< may appear in a saved text
    bool isOutcome = false;    //!< its result is true or false, and must not be ignored if it is false
    bool isUnwrapped = false;  //!< keeps steps of its own: the open step is interrupted while it executes

    // ---- of an attribute that is declared as a plain value ----
    bool isCopied = false;                               //!< copies of the object take it over
    bool marksClients = true;                            //!< a change marks what depends on the object
    std::function<QString(const Values& values)> fault;  //!< why a value is refused, for the user; may be null
    std::function<void(FObject& to, const FObject& from)> copy;
    std::function<std::unique_ptr<FStateField>()> makeField;

    /** Why it gave nothing, or what else could have been asked for; for a message after a null result. May be null. */
    std::function<QString(const FObject* receiver)> explanation;

    /** Spelled from kind, class, name and argument types; also the key under which the command can be hidden. */
    QString className() const;
    /** The root of the documentation keys. */
    QString docuRoot() const;
    bool isQuery() const { return effect != Effect::Acts; }
    /** False, with a message, for a value that the attribute refuses. */
    bool mayTake(const Values& values, const FObject& receiver) const;
    bool hasResult() const { return returnType.cls != nullptr; }
    bool isMember() const { return kind == Kind::Attribute || kind == Kind::Member; }
    bool isCreator() const { return kind == Kind::Create || kind == Kind::CreateEntity; }
    /** The word of the kind in the documentation keys and in the reference. */
    QString kindWord() const;

    /** Class data of the command class that this row stands for; made when the table is complete. */
    FClassData* commandClass = nullptr;
};

/** A documentation key of a command, with its disambiguation, which may be empty. */
struct MERIX_EXPORT FDocuKey {
    int area;      //!< 1 description or argument, 2 example, 3 result
    int argument;  //!< number of the argument, or -1
    QString key;
    QString disambiguation;

    static std::vector<FDocuKey> ofCommand(const FCmdRow& row);
};
