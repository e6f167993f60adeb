#pragma once

class FObject;

/**
 * Chooses the class that "FSoftwareConnector" stands for. The one place that does so: there is only the record at
 * present, in programs with and without windows.
 */
class FConnectorClass {
 public:
    /** Builds the prototype after those of its commands and of their types. */
    static const FObject* initPrototype();
};
