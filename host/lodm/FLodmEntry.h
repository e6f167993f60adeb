#pragma once

#include "host/core/FExport.h"
#include "host/script/FPlace.h"

#include <QString>

#include <vector>

/** An entry definition as described in the XML half of an exchange file. */
struct MERIX_EXPORT FLodmEntry {
    /** How the text of a default value is to be read. */
    enum class Default { None, Number, Text, Truth, Script };

    QString name;
    int least = 1;
    int most = 1;
    bool hidden = false;
    QString description;
    bool isGroup = false;
    QString type;  //!< class name; may be empty if the default value determines it
    Default kind = Default::None;
    QString value;
    FPlace valuePlace;
    std::vector<FLodmEntry> children;
};

/** The words of exchange files. Other tools write them, so they must not change. */
namespace lodm {

constexpr int formatVersion = 1;

inline const char* const definitionElement = "definition";
inline const char* const groupElement = "group";
inline const char* const entryElement = "entry";
inline const char* const descriptionElement = "description";
inline const char* const defaultElement = "default";
inline const char* const docuElement = "docu";
inline const char* const areaAttr = "area";
inline const char* const versionAttr = "version";
inline const char* const nameAttr = "name";
inline const char* const leastAttr = "least";
inline const char* const mostAttr = "most";
inline const char* const hiddenAttr = "hidden";
inline const char* const typeAttr = "type";
inline const char* const kindAttr = "kind";
inline const char* const trueWord = "true";
inline const char* const falseWord = "false";

/** The words of the kinds of default values, from FLodmEntry::Default::Number on. */
inline const char* const kindWords[] = {"number", "text", "truth", "script"};

inline QString word(const char* text) {
    return QString::fromLatin1(text);
}

}  // namespace lodm
