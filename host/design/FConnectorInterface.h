#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"

#include <QList>
#include <QString>

class FDefinition;
class FExternComputation;
class FManaged;

/**
 * A software connector as those see it who know no widget: the window on one computation with its files. The connectors
 * are managed objects, found by the name of their class; without such a class there are none.
 */
class MERIX_EXPORT FConnectorInterface {
 public:
    virtual ~FConnectorInterface() = default;

    /** The computation; an empty handle if there is none. */
    virtual FExpr<FExternComputation> getComputation() const = 0;
    virtual void setComputation(const FExpr<FExternComputation>& computation) = 0;
    virtual bool containsComputation(const FExpr<FExternComputation>& computation) const = 0;
    /** The definition behind the computation; null if there is none. */
    virtual FDefinition* getDefinition() const = 0;

    /** Locks the window for a run, or unlocks it. */
    virtual void disableGui(bool disable) = 0;
    virtual void show() = 0;
    /** Has the editors of a file show it as it is now. */
    virtual void refreshEditors(const FManaged* file) = 0;
    virtual void refreshCommandFileEditors() = 0;
    /** The connector as an object of the model. */
    virtual FManaged* asManaged() = 0;

    /** Makes a connector of the same class; asked of the prototype. */
    virtual FConnectorInterface* createConnector(const QString& name,
                                                 const FExpr<FExternComputation>& computation) const = 0;

    /** All connectors of a class, in the order of their creation. */
    static QList<FConnectorInterface*> getConnectors(const QString& className);
    /** Those of the class FSoftwareConnector that show the definition. */
    static QList<FConnectorInterface*> getConnectors(const FDefinition* definition);
    /** Makes one of that class; null if there is no such class. */
    static FConnectorInterface* create(const QString& className, const QString& name,
                                       const FExpr<FExternComputation>& computation);
};
