#pragma once

#include "host/core/FNumber.h"
#include "host/core/FString.h"
#include "host/design/FConfiguration.h"
#include "tests/support/FModelTest.h"

/** A definition that notes which changes of names in tags were reported, as "old -> new". */
class FNotingDefinition : public FClass<FNotingDefinition, FDefinition> {
 public:
    static FClassData mClass;

    explicit FNotingDefinition(const QString& name = QString()) : FClass(name) {}
    void updateCommandFiles(const QString& oldName, const QString& newName) override;

    QStringList mRenames;
};

/** A definition `def` with the entries `height` (40) and `Geometry|span` (10), and a configuration `conf` of it. */
class FEntryFixture : public FDirectTest {
 public:
    FEntryFixture();

    static FNotingDefinition& definition() { return *object<FNotingDefinition>("def"); }
    static FConfiguration& configuration() { return *object<FConfiguration>("conf"); }
    QStringList paths() const { return configuration().getEntryMap().keys(); }
    /** The values of all entries in the order of their paths. */
    QStringList values() const;
};
