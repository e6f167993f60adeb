#pragma once

#include "host/core/FExport.h"

#include <QString>

#include <vector>

class FObject;

/** The types of entries in the words of users. */
namespace FEntryTypes {

struct Type {
    const char* className;
    const char* word;
    const char* value;  //!< a default of that type, as script text
};

/** Those that a user can choose for a new entry. */
MERIX_EXPORT const std::vector<Type>& choices();

/** The word for a type, by its prototype; null stands for a group. */
MERIX_EXPORT QString wordFor(const FObject* type);

}  // namespace FEntryTypes
