#pragma once

#include "host/core/FExport.h"

#include <QString>

#include <memory>
#include <vector>

class FCmdTable;
class FObject;
class FStateField;

/** The families of classes; each has a registrar, a flag and a trace text of its own, see FPrototypes. */
enum class FFamily { Object, Managed, View };

/**
 * What is known of one class: the one place for all that the class pattern keeps per class.
 *
 * Each class owns exactly one, a static member `mClass` defined in its source file. All members that a class states
 * are constants, so that the object exists before any code runs; everything else is filled in later.
 */
class MERIX_EXPORT FClassData {
 public:
    using Commands = void (*)(FCmdTable&);
    using Fields = std::vector<std::unique_ptr<FStateField>> (*)();

    /**
     * @param name      the class name, spelled exactly as the class
     * @param super     the direct base; null for FObject alone
     * @param commands  fills the table of the class's commands; null if it has none
     * @param fields    the raw fields that the history keeps, without those of the base; null if there are none
     */
    constexpr FClassData(const char* name, FClassData* super, Commands commands = nullptr, Fields fields = nullptr,
                         unsigned systemFlag = 0)
        : mName(name), mpSuper(super), mCommands(commands), mFields(fields), mSystemFlag(systemFlag) {}
    FClassData(const FClassData&) = delete;
    FClassData& operator=(const FClassData&) = delete;

    const QString& getName() const { return mpNameText ? *mpNameText : makeNameText(); }
    FClassData* getSuper() const { return mpSuper; }
    Commands getCommands() const { return mCommands; }
    /** For a class whose commands an upper layer knows: called while that layer's library is loaded. */
    void setCommands(Commands commands) { mCommands = commands; }

    /** The raw fields of the class and of its bases, those of the base first; with the attributes of command tables. */
    const std::vector<const FStateField*>& getFields() const;

    /** True if `other` is this class or derived from it. */
    bool isSuperClassOf(const FClassData& other) const {
        const FClassData* data = &other;
        while (data && data != this) {
            data = data->mpSuper;
        }
        return data;
    }

 private:
    struct FieldCache;

    const QString& makeNameText() const;

    const char* mName;
    FClassData* mpSuper;
    Commands mCommands;
    Fields mFields;
    // Built at first use, kept to the end of the program.
    mutable const QString* mpNameText = nullptr;
    mutable FieldCache* mpFieldCache = nullptr;

 public:
    unsigned int mSystemFlag;
    bool mCmdsInitialized = false;
    bool mInitializing = false;
    bool mTypeDocuInitialized = false;
    const FObject* mpNull = nullptr;  //!< the prototype
};
