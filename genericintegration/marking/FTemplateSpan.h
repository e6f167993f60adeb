#pragma once

/** A part of a line that the editor of input templates colours. */
struct FTemplateSpan {
    enum class Kind {
        Tag,        //!< "<entry>" or "</entry>"
        TagError,   //!< the same in a wrong place
        Known,      //!< name of an entry or a file
        Unknown,    //!< name of nothing
        ErrorText,  //!< after a tag that isn't closed; its background is that of the span before it
        Possible,   //!< a number that can become an entry, with its key
        Match,      //!< found by the user's search
    };

    Kind kind;
    int start;  //!< UTF-16 units from the start of the line
    int length;

    bool operator==(const FTemplateSpan&) const = default;
};
