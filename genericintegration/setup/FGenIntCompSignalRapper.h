#pragma once

#include <QObject>

class FGenIntComputation;

/** Tells of the runs of a computation to those who show it. */
class FGenIntCompSignalRapper : public QObject {
    Q_OBJECT

 public:
    explicit FGenIntCompSignalRapper(FGenIntComputation* computation) : mpComputation(computation) {}

    FGenIntComputation* getComputation() const { return mpComputation; }

 signals:
    void genIntRunStarted();
    /** Always with true: whether the run succeeded is a question to its results. */
    void genIntRunEnded(bool scan);
    /** The computation goes, and is still whole. */
    void genIntCompDestroyed();

 private:
    FGenIntComputation* mpComputation;
};
