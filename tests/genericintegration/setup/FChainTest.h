#pragma once

#include "genericintegration/setup/FGenIntComputation.h"
#include "tests/support/FModelTest.h"
#include "tests/support/FTestFolder.h"

/** Tests on a chain of three, see `chainOfThree`. The project is in a folder of its own. Nothing has been run. */
class FChainTest : public FDirectTest, public FTestFolder {
 public:
    FChainTest();

 protected:
    static FGenIntComputation* computation(const QString& name) { return object<FGenIntComputation>(name); }
    /** The number that each computation's result template finds, or "NaN"; in one line. */
    static QString numbers(const QStringList& computations);
    /** Empties the model; the project is then one that has just been made in another folder. */
    void openEmptyProject() const;
};
