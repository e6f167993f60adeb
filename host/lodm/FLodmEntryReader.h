#pragma once

#include "host/lodm/FLodmEntry.h"

class FLodmXmlReader;

/** Reads entry definitions of the XML half of an exchange file into plain descriptions. Faults are raised on the XML.
 */
class FLodmEntryReader {
 public:
    explicit FLodmEntryReader(FLodmXmlReader& xml) : mXml(xml) {}

    /** Adds the element at hand, with all in it, to the entries. */
    void read(std::vector<FLodmEntry>& entries) { readEntry(entries, 1); }
    /** Raises a fault if two of the entries in the element at hand have one name. */
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
