#pragma once

#include "genericintegration/setup/FGenIntComputation.h"
#include "genericintegration/setup/FResultsGenInt.h"
#include "tests/support/FModelTest.h"

#include <QTemporaryDir>

/**
 * Tests on one integration: the program squares the entry "x", and prints it to a file and to the console. Its project
 * lies in a folder of its own.
 */
class FIntegrationTest : public FModelTest {
 public:
    FIntegrationTest();
    ~FIntegrationTest() override;

 protected:
    static FGenIntComputation* computation(const QString& name = QStringLiteral("comp"));
    static FResultsGenInt* results();
    void write(const QString& name, const QByteArray& bytes) const;
    QString logText() const { return log().join('\n'); }

    QTemporaryDir mFolder;
};
