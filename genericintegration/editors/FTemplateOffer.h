#pragma once

#include <QString>
#include <QTextCursor>

#include <optional>

class FGenIntCommandFileSyntaxHighlighter;

/** What an input template offers at a place: a number that can become an entry, or the tag of an entry. */
struct FTemplateOffer {
    /** Nothing if nothing is offered there. Large texts are analysed for it. */
    static std::optional<FTemplateOffer> at(const QTextCursor& place, FGenIntCommandFileSyntaxHighlighter& highlighter);

    QTextCursor start() const;
    QTextCursor end() const;

    bool isNumber;
    QString name;  //!< of the entry, or proposed for it
    QString text;
    double value;
    QTextCursor whole;     //!< selects all of it, with the key of a number
    QTextCursor replaced;  //!< selects what a tag, or the text of another one, replaces
};
