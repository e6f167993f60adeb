#pragma once

#include "genericintegration/setup/FGenIntComputation.h"
#include "genericintegration/setup/FResultsGenInt.h"
#include "tests/support/FModelTest.h"
#include "tests/support/FTestFolder.h"

/**
 * Tests on one integration: the program squares the entry "x", and prints it to a file and to the console. Its project
 * is in a folder of its own.
 */
class FIntegrationTest : public FDirectTest, public FTestFolder {
 public:
    FIntegrationTest();

 protected:
    static FGenIntComputation* computation(const QString& name = "comp") { return object<FGenIntComputation>(name); }
    static FResultsGenInt* results() { return dynamic_cast<FResultsGenInt*>(computation()->getResults().ptr()); }
    /** Into the folder of the run. */
    void write(const QString& name, const QByteArray& bytes) const {
        FTestFolder::write("study.results/baseline/comp/" + name, bytes);
    }
};
