#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/** One part of an exchange file: a definition with what belongs to it. */
struct FSetUpPart {
    QString text;  //!< each line ends with "\n"
    int line = 1;  //!< of the file, where the text begins

    /** Whether the text ends as the end of a part does; else the rest was lost. */
    bool hasEnd() const;
    /** The names of the objects that the part declares, apart from its definition. */
    QStringList declaredNames() const;
};

/** The parts of an exchange file that holds several set-ups, in their order. */
class FSetUpParts {
 public:
    /** A part begins at each line with the XML header. What comes before the first header is a part, too. */
    static std::vector<FSetUpPart> split(const QString& text);
};
