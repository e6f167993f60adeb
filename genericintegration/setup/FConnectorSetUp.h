#pragma once

#include "genericintegration/setup/SoftConItemSize.h"
#include "host/design/FConnectorInterface.h"
#include "host/run/FExternComputation.h"

class FConfigurationGenInt;

/**
 * What a software connector saves, and the changes that it makes to the model. They are the same for connectors with
 * and without a window.
 *
 * A connector owns its computation, with configuration, definition and templates: they are destroyed together, whether
 * the connector or the computation goes first. During undo and redo nothing cascades, since the history restores each
 * object itself.
 */
class FConnectorSetUp {
 public:
    /** @param connector  outlives this object */
    explicit FConnectorSetUp(FConnectorInterface& connector) : mpConnector(&connector) {}
    ~FConnectorSetUp();
    FConnectorSetUp(const FConnectorSetUp&) = delete;
    FConnectorSetUp& operator=(const FConnectorSetUp&) = delete;

    /**
     * Gives a new connector its computation. If none is given, makes one named "Runner", except while a project is
     * loaded. If another connector has the computation, the connector stays without one.
     */
    void start(const FExpr<FExternComputation>& computation);
    /**
     * Takes a computation, or none. Refused with a message if a connector has it already, also this one. A computation
     * without a configuration gets a new one, except while a project is loaded. The one before stays in the model.
     */
    void setComputation(const FExpr<FExternComputation>& computation);
    bool containsComputation(const FExpr<FExternComputation>& computation) const;
    /** The definition of the computation's present configuration; null if there is none. */
    FDefinition* getDefinition() const;

    /** Makes an empty definition and a configuration of it for the computation. */
    static FConfigurationGenInt* initNewConfiguration(FExternComputation& computation);
    /** Replaces a configuration that was removed. Call it in updates; outside of a step it does nothing. */
    void follow();
    /** Destroys the computation with what belongs to it. Call it when the connector leaves the model. */
    void destroyAll();
    /** Has the connector destroyed together with its present computation. */
    void listen();

    // Raw state, for command tables and the history.
    FExpr<FExternComputation> mComputation;  //!< the connector depends on it
    SoftConItemSize mItemSize = SoftConItemSize::Medium;
    QString mResultsPath;

 private:
    bool isTaken(const FExpr<FExternComputation>& computation) const;
    void addMissingConfiguration();

    FConnectorInterface* mpConnector;
    QMetaObject::Connection mGone;
    bool mIsDestroying = false;
};
