#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"

#include <QList>
#include <QString>

class FClassData;
class FDefinition;
class FExternComputation;
class FManaged;

/**
 * A software connector as other classes see it, with or without a window: the view of one computation with its files.
 * Connectors are managed objects. A class of connectors registers itself while its library is loaded; without such a
 * class there are none.
 */
class MERIX_EXPORT FConnectorInterface {
 public:
    virtual ~FConnectorInterface() = default;

    /** The computation; an empty handle if there is none. */
    virtual FExpr<FExternComputation> getComputation() const = 0;
    virtual void setComputation(const FExpr<FExternComputation>& computation) = 0;
    virtual bool containsComputation(const FExpr<FExternComputation>& computation) const = 0;
    /** The definition of the computation's configuration; null if there is none. */
    virtual FDefinition* getDefinition() const = 0;

    /** Locks the window for a run, or unlocks it. */
    virtual void disableGui(bool disable) = 0;
    /** Makes the window visible; nothing without windows. */
    virtual void showConnector() = 0;
    /** Has the editors of a file show its present content. */
    virtual void refreshEditors(const FManaged* file) = 0;
    virtual void refreshCommandFileEditors() = 0;
    /** The connector as an object of the model. */
    virtual FManaged* asManaged() = 0;

    /** Makes a connector of the same class; called on the prototype. */
    virtual FConnectorInterface* createConnector(const QString& name,
                                                 const FExpr<FExternComputation>& computation) const = 0;

    /**
     * Makes a class known that is derived from this one. All registered classes have the same name; new connectors are
     * of the class whose prototype has that name.
     */
    static void registerClass(FClassData& data);
    /** All connectors, in the order of their creation. */
    static QList<FConnectorInterface*> getConnectors();
    /** Those whose computation has the definition. */
    static QList<FConnectorInterface*> getConnectors(const FDefinition* definition);
    /** Makes a connector; null if there is no class of connectors. */
    static FConnectorInterface* create(const QString& name, const FExpr<FExternComputation>& computation);
    /** Updates all connectors and has their editors of input templates show the present content. */
    static void refreshAll();
};
