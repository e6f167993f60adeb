#pragma once

#include <QObject>

class FGenIntComputation;

/** Reports the runs of a computation to the objects that show it. */
class FGenIntCompSignalRapper : public QObject {
    Q_OBJECT

 public:
    explicit FGenIntCompSignalRapper(FGenIntComputation* computation) : mpComputation(computation) {}

    FGenIntComputation* getComputation() const { return mpComputation; }

 signals:
    void genIntRunStarted();
    /** The argument is always true; ask the results whether the run succeeded. */
    void genIntRunEnded(bool scan);
    /** The computation is about to leave the model and is still usable. */
    void genIntCompDestroyed();

 private:
    FGenIntComputation* mpComputation;
};
