#pragma once

#include <QSet>
#include <QString>
#include <QStringList>
#include <QStringView>

/** A set of names in which case doesn't matter, as when QString compares. A look-up takes constant time. */
class FFoldedNames {
 public:
    FFoldedNames() = default;
    explicit FFoldedNames(const QStringList& names);

    void add(QStringView name) { mNames.insert(folded(name)); }
    bool contains(QStringView name) const { return mNames.contains(folded(name)); }

 private:
    static QString folded(QStringView name);

    QSet<QString> mNames;
};
