#include "host/design/FEntityLinks.h"

#include "host/script/FCmd.h"

#include <algorithm>

void FEntityLinks::replace(const FManaged& owner, QList<FExpr<FEntity>>& list, const QList<FExpr<FEntity>>& wanted) {
    for (const FExpr<FEntity>& entity : list) {
        entity.unregisterClient(&owner);
    }
    list.clear();
    for (const FExpr<FEntity>& entity : wanted) {
        if (!entity || list.contains(entity)) {
            continue;
        }
        if (entity.registerClient(&owner)) {
            list.append(entity);
        } else {
            FCmd::warnNow(owner.getClass(),
                          QStringLiteral("%1 would depend on itself with %2").arg(owner.getName(), entity.toString()),
                          QStringLiteral("It is left out"));
        }
    }
}

QList<FExpr<FEntity>> FEntityLinks::present(const QList<FExpr<FEntity>>& list) {
    QList<FExpr<FEntity>> found;
    std::copy_if(list.begin(), list.end(), std::back_inserter(found),
                 [](const FExpr<FEntity>& entity) { return entity.isValid(); });
    return found;
}
