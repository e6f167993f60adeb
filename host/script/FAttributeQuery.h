#pragma once

#include "host/core/FExport.h"
#include "host/script/FCmdRow.h"

#include <limits>
#include <optional>

/**
 * Answers the questions of an object editor from the command tables. The receiver is an object, or a list of objects
 * such as a selection set, nested lists included. A list has the commands that the classes of all its objects share.
 *
 * A query keeps the objects that the receiver holds when the query is constructed.
 */
class MERIX_EXPORT FAttributeQuery {
 public:
    using Rows = std::vector<const FCmdRow*>;

    /** Selects commands for a user. By default all pass. Hidden commands never do. */
    struct Filter {
        unsigned int userLevel = std::numeric_limits<unsigned int>::max();  //!< commands of a higher level are left out
        unsigned int systemFlags = std::numeric_limits<unsigned int>::max();  //!< commands with other bits are left out
    };

    /** A kept expression, not evaluated. */
    struct Expression {
        FExprBase handle;  //!< empty if the attribute has no value
        QString text;      //!< script text that restores the handle; "NULL" for an empty one
    };

    explicit FAttributeQuery(const FExprBase& receiver);

    /** The attributes, ordered by category, then weight, then table (bases first). */
    Rows getAttributes(const Filter& filter) const;
    Rows getAttributes() const { return getAttributes(Filter()); }
    /** The member commands with a menu entry, ordered by place, then table (bases first). */
    Rows getMenuMembers(const Filter& filter) const;

    /**
     * Whether at least one object requires the attribute: evaluates the expression `attrRequiredCmd` for each. If it
     * can't be evaluated to true or false, the result is false, with an error message.
     */
    bool isRequired(const FCmdRow& attribute) const;

    /** Whether the attribute keeps its value as an expression, which then follows what it names. */
    static bool keepsExpression(const FCmdRow& attribute);
    /**
     * The expression that the attribute keeps. Nothing if the objects' expressions differ, if an object doesn't have
     * the attribute, if there is no object, or if the attribute doesn't keep expressions.
     */
    std::optional<Expression> getExpression(const FCmdRow& attribute) const;

 private:
    void collect(const FExprBase& handle);
    Rows sharedMembers(const Filter& filter) const;

    std::vector<FExprBase> mObjects;
};
