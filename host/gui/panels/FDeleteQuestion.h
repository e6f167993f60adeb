#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"

#include <QList>

class FManaged;

/** Before objects are deleted: asks about what goes with them, or stops, without being one of them. */
namespace FDeleteQuestion {

/** Whether to delete them; true without a question if it concerns nothing else. */
MERIX_EXPORT bool ask(const QList<FExpr<FManaged>>& objects);

}  // namespace FDeleteQuestion
