#pragma once

#include "host/core/FManaged.h"

#include <QTextStream>

/** Writes objects as the script text from which they can be restored. */
class FObjectSaver {
 public:
    explicit FObjectSaver(QTextStream& stream) : mStream(stream) {}

    void save(const FManaged& object, unsigned int indent, bool inScope, bool flag);
    /**
     * A line for each attribute that a saved text may hold.
     * @param flag  whether the object's number is saved, too, as projects do
     */
    void saveAttributes(const FManaged& object, const std::vector<const FObject*>& attributes, unsigned int indent,
                        bool flag);

 private:
    void line(unsigned int indent, const QString& command);

    QTextStream& mStream;
};
