#pragma once

#include "genericintegration/setup/FAverageRowsEditor.h"
#include "host/script/FMemberCmd.h"

/**
 * Sets over how many rows a result value is averaged. It belongs to one field of an editor and not to a class. Its
 * only argument has no name: the number of rows, or NULL.
 */
class FAttribCmdSetAverageRows : public FClass<FAttribCmdSetAverageRows, FAttribCmd> {
 public:
    static FClassData mClass;

    /** @param editor  outlives the command; null: the command does nothing */
    explicit FAttribCmdSetAverageRows(FAverageRowsEditor* editor = nullptr) : mpEditor(editor) {}
    FObject* clone() const override { return new FAttribCmdSetAverageRows(mpEditor); }

    /** The number of rows of the editor's value; 0 without an editor or template. */
    void getAttrValue(FExprBase& value) const override;
    const FClassData* getValueClass() const override { return &FUnsigned::mClass; }

 protected:
    FExprBase execute() const override;

 private:
    FAverageRowsEditor* mpEditor;
};
