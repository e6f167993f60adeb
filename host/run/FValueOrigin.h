#pragma once

#include "host/core/FClass.h"
#include "host/core/FExport.h"
#include "host/core/FExpr.h"
#include "host/run/FNumberOrigin.h"

class FTableData;

/** Where a number of a table comes from, for scripts: a record of named values. It stays valid without the table. */
class MERIX_EXPORT FValueOrigin : public FClass<FValueOrigin, FObject> {
 public:
    static FClassData mClass;

    FValueOrigin() = default;
    FValueOrigin(const FTableData& table, int row);
    FObject* clone() const override { return new FValueOrigin(*this); }

    /** A value of the record: a text, a number or a list; an empty handle, with a warning, for an unknown name. */
    FExpr<FObject> get(const QString& name) const;
    static QStringList getNames();

    /** The record in one line, such as `out.log:212:9 "-5.013907" (exponent)`. */
    QString toString() const override;
    QString getKeptText(QString& fault) const override;

 private:
    struct Part {
        const char* name;
        FExpr<FObject> (*get)(const FValueOrigin& origin);
    };

    FValueOrigin(QString file, QString name, double value, FNumberOrigin origin);
    static const std::vector<Part>& parts();
    FExpr<FObject> rows() const;

    QString mFile;
    QString mName;
    double mValue = 0;
    FNumberOrigin mOrigin;
};
