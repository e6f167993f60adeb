#pragma once

#include "host/lodm/FLodmEntry.h"

class FLodmXmlReader;

/** Reads entry definitions from the XML half of an exchange file into descriptions. Errors are raised on the reader. */
class FLodmEntryReader {
 public:
    explicit FLodmEntryReader(FLodmXmlReader& xml) : mXml(xml) {}

    /** Adds the present element and its children to the entries. */
    void read(std::vector<FLodmEntry>& entries) { readEntry(entries, 1); }
    /** Raises an error if two of the entries in the present element have the same name. */
    void checkNames(const std::vector<FLodmEntry>& entries);

 private:
    void readEntry(std::vector<FLodmEntry>& entries, int level);
    void readFrame(FLodmEntry& entry);
    void readOccurrences(FLodmEntry& entry);
    void readGroup(FLodmEntry& group, int level);
    void readValues(FLodmEntry& entry);
    void readDefault(FLodmEntry& entry);

    FLodmXmlReader& mXml;
    int mCount = 0;
};
