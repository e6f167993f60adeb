#include "merix/FSetUpTarget.h"

#include "host/core/FHistory.h"
#include "host/core/FLogMsg.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FNumber.h"
#include "host/core/FNumberText.h"
#include "host/core/FObjectManager.h"
#include "host/core/FPrototypes.h"
#include "host/core/FString.h"
#include "host/lodm/FCustomComputation.h"
#include "host/script/FCmdManager.h"
#include "host/script/FProject.h"
#include "merix/FExitCode.h"

#include <algorithm>

namespace {

void fail(const QString& message, const QString& remedy) {
    FLogMsg::error(QStringLiteral("merix"), message, remedy);
}

QString quotedList(const QStringList& names) {
    return QLatin1Char('"') + names.join(QStringLiteral("\", \"")) + QLatin1Char('"');
}

/** The text of an option as a value for an entry; empty if it is none. */
FExprBase valueFor(const FEntry& entry, const QString& text) {
    const FObject* present = entry.getValueObject();
    const bool isNumber = present && present->isTypeOf(FDouble::null());
    if (present && present->isTypeOf(FString::null())) {
        return FExprBase(new FString(text));
    }
    if (const std::optional<double> number = numberFromText(text)) {
        return FExprBase(new FDouble(*number));
    }
    FExprBase expression;
    if (expression.resolve(text) || isNumber) {
        return expression;
    }
    return FExprBase(new FString(text));
}

}  // namespace

int FSetUpTarget::openProject(const QString& path, Access access) {
    FPrototypes::buildPending();
    FMerixCtrl::instance()->setReadOnly(access == Access::Read);
    const bool isOpen = FProject::instance()->open(path, false);
    FMerixCtrl::instance()->setReadOnly(false);
    if (!isOpen && path.endsWith(QStringLiteral(".merix"))) {
        FLogMsg::info(QStringLiteral("merix"), QStringLiteral("\"%1\" seems to be a script").arg(path),
                      QStringLiteral("Execute it with \"merix script\", and save its project with saveProject"));
    }
    return isOpen ? FExitCode::done : FExitCode::fileError;
}

int FSetUpTarget::open(Access access) const {
    const int exitCode = openProject(QString::fromStdString(mProject), access);
    if (exitCode != FExitCode::done) {
        return exitCode;
    }
    mpComputation = find(QString::fromStdString(mName));
    const bool isSet = mpComputation && std::all_of(mValues.begin(), mValues.end(), [this](const std::string& value) {
                           return set(QString::fromStdString(value));
                       });
    return isSet ? FExitCode::done : FExitCode::wrongCall;
}

QStringList FSetUpTarget::computationNames() {
    QStringList names;
    for (const FManaged* object : FObjectManager::instance()->getManaged(FCustomComputation::null())) {
        names.append(object->getName());
    }
    return names;
}

FCustomComputation* FSetUpTarget::find(const QString& name) {
    const QStringList names = computationNames();
    if (names.isEmpty()) {
        fail(QStringLiteral("the project has no computation"), QStringLiteral("Name a project with one"));
        return nullptr;
    }
    if (name.isEmpty() && names.size() > 1) {
        fail(QStringLiteral("the project has %1 computations").arg(names.size()),
             QStringLiteral("Choose one with --computation: %1").arg(quotedList(names)));
        return nullptr;
    }
    const QString chosen = name.isEmpty() ? names.first() : name;
    if (!names.contains(chosen)) {
        fail(QStringLiteral("the project has no computation \"%1\"%2").arg(chosen, didYouMean(chosen, names)),
             QStringLiteral("It has %1").arg(quotedList(names)));
        return nullptr;
    }
    return dynamic_cast<FCustomComputation*>(FObjectManager::instance()->find(chosen));
}

bool FSetUpTarget::set(const QString& assignment) const {
    FConfigurationCustom* configuration = mpComputation->getConfiguration().ptr();
    const int sign = assignment.indexOf(QLatin1Char('='));
    const QString path = assignment.left(sign);
    if (sign <= 0) {
        fail(QStringLiteral("--set \"%1\" sets nothing").arg(assignment),
             QStringLiteral("Write --set ENTRY=VALUE, such as --set length=12.5"));
        return false;
    }
    const FEntry* entry = configuration ? configuration->getValueEntry(path) : nullptr;
    if (!entry) {
        const QStringList known = configuration ? QStringList(configuration->getEntryMap().keys()) : QStringList();
        fail(QStringLiteral("--set: \"%1\" has no entry \"%2\"%3")
                 .arg(configuration ? configuration->getName() : mpComputation->getName(), path,
                      didYouMean(path, known)),
             known.isEmpty() ? QString() : QStringLiteral("It has %1").arg(quotedList(known.mid(0, 10))));
        return false;
    }
    const FExprBase value = valueFor(*entry, assignment.mid(sign + 1));
    if (value.isEmpty()) {
        fail(QStringLiteral("--set: \"%1\" is no value for the entry \"%2\"").arg(assignment.mid(sign + 1), path),
             QStringLiteral("Give a number, such as %1=12.5, or an expression").arg(path));
        return false;
    }
    FHistoryTransaction transaction(QStringLiteral("set entry value"));
    return configuration->setEntryValue(path, value);
}
