#pragma once

#include "host/core/FManaged.h"

#include <QSet>

#include <vector>

class FGenIntComputation;
class QFile;

/**
 * Writes set-ups as an exchange file: for each its definition with templates, its computation, its configuration, and
 * its connector if there is one. The set-ups of a chain follow each other, suppliers first.
 */
class FSetUpExport {
 public:
    enum class Extent { Single, Chain };

    explicit FSetUpExport(const FGenIntComputation& computation, Extent extent = Extent::Single);

    /** Whether there is something to write: the computation has a configuration with a definition. */
    bool isPossible() const { return mIsPossible; }
    /** Puts a file in place in one step. Returns the reason of a failure, for the user; what was there then remains. */
    QString save(const QString& path) const;
    /** Writes to an open file; false if not everything could be written. */
    bool write(QFile& file) const;

 private:
    std::vector<const FGenIntComputation*> mComputations;
    bool mIsPossible;
};
