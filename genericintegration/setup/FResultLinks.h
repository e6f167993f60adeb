#pragma once

#include <QList>
#include <QString>

class FConnectorInterface;

/** The results of a connector that an input file of another one can be linked to. */
struct FResultLinks {
    struct Link {
        QString name;        //!< of the file
        QString expression;  //!< script text that gives the path of the file
        bool isTemplate;     //!< whether values are read from the file
    };

    QString title;  //!< names connector and computation
    QList<Link> links;

    /** Of all connectors with a computation but the calling one, which may be null. */
    static QList<FResultLinks> of(const FConnectorInterface* caller);
};
