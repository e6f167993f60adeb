#pragma once

class FClassData;
class FObject;

/**
 * Chooses the class that "FSoftwareConnector" stands for. The one place that does so: in a program with windows it is
 * the class that the window part has set, else the record.
 */
class FConnectorClass {
 public:
    using Build = const FObject* (*)();

    /** Builds the prototype after those of its commands and of their types. */
    static const FObject* initPrototype();
    /** The class with a window. Call it while libraries are loaded. */
    static void setWindowClass(FClassData& data, Build build);
};
