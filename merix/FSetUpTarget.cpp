#include "merix/FSetUpTarget.h"

#include "host/core/FHistory.h"
#include "host/core/FLogMsg.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FNumber.h"
#include "host/core/FNumberText.h"
#include "host/core/FObjectManager.h"
#include "host/core/FPrototypes.h"
#include "host/core/FString.h"
#include "host/design/FParameter.h"
#include "host/lodm/FCustomComputation.h"
#include "host/run/FComputationChain.h"
#include "host/run/FComputationResults.h"
#include "host/script/FCmdManager.h"
#include "host/script/FProject.h"
#include "merix/FExitCode.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

void fail(const QString& message, const QString& remedy) {
    FLogMsg::error(QStringLiteral("merix"), message, remedy);
}

QString quotedList(const QStringList& names) {
    return QLatin1Char('"') + names.join(QStringLiteral("\", \"")) + QLatin1Char('"');
}

/** Whether a text is a call such as format(1000, "%8.1f") that gives a text. */
bool isCallForText(const QString& text, const FExprBase& expression) {
    static const QRegularExpression call(QStringLiteral("^[A-Za-z_]\\w*\\(.*\\)$"));
    return expression.isCmd() && expression.getType() && expression.getType()->isTypeOf(FString::null()) &&
           call.match(text.trimmed()).hasMatch();
}

/** The text of an option as a value in place of the present one; empty if it is none. */
FExprBase valueFor(const FObject* present, const QString& text) {
    const bool isText = present && present->isTypeOf(FString::null());
    const std::optional<double> number = isText ? std::nullopt : numberFromText(text);
    if (number) {
        return FExprBase(new FDouble(*number));
    }
    FExprBase expression;
    const bool isExpression = expression.resolve(text);
    if (isText) {
        return isExpression && isCallForText(text, expression) ? expression : FExprBase(new FString(text));
    }
    const bool isNumber = present && present->isTypeOf(FDouble::null());
    return isExpression || isNumber ? expression : FExprBase(new FString(text));
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

struct FSetUpTarget::FPlace {
    FConfigurationCustom* configuration = nullptr;
    QString path;  //!< of an entry of the configuration
    FParameter* parameter = nullptr;

    const FObject* present() const {
        return parameter ? parameter->getValueObject() : configuration->getValueEntry(path)->getValueObject();
    }
    bool set(const FExprBase& value) const {
        FHistoryTransaction transaction(QStringLiteral("set value"));
        return parameter ? parameter->setValue(value) : configuration->setEntryValue(path, value);
    }
};

QList<FConfigurationCustom*> FSetUpTarget::configurations() const {
    FComputationChain::Computations computations{mpComputation};
    computations += FComputationChain::suppliersOf(*mpComputation);
    QList<FConfigurationCustom*> configurations;
    for (const FExternComputation* each : computations) {
        const auto* computation = dynamic_cast<const FCustomComputation*>(each);
        FConfigurationCustom* configuration = computation ? computation->getConfiguration().ptr() : nullptr;
        if (configuration && !configurations.contains(configuration)) {
            configurations.append(configuration);
        }
    }
    return configurations;
}

// A name alone is first an entry of the computation itself, then a parameter, then an entry further up in the chain.
FSetUpTarget::FPlace FSetUpTarget::placeOf(const QString& name, QString& remedy) const {
    const QList<FConfigurationCustom*> all = configurations();
    QList<FPlace> places;
    for (FConfigurationCustom* configuration : all) {
        const QString prefix = configuration->getName() + QLatin1Char('.');
        const QString path = name.startsWith(prefix) ? name.mid(prefix.size()) : QString();
        const bool isOwn = configuration == mpComputation->getConfiguration().ptr();
        if (isOwn && configuration->getValueEntry(name)) {
            return {configuration, name};
        }
        if (!path.isEmpty() && configuration->getValueEntry(path)) {
            return {configuration, path};
        }
        if (configuration->getValueEntry(name)) {
            places.append({configuration, name});
        }
    }
    if (auto* parameter = dynamic_cast<FParameter*>(FObjectManager::instance()->find(name))) {
        return {nullptr, QString(), parameter};
    }
    if (places.size() > 1) {
        remedy = QStringLiteral("Several configurations have that entry; write %1.%2 or %3.%2")
                     .arg(places[0].configuration->getName(), name, places[1].configuration->getName());
    }
    return places.size() == 1 ? places.first() : FPlace();
}

QStringList FSetUpTarget::knownNames() const {
    QStringList names;
    for (const FConfigurationCustom* configuration : configurations()) {
        const bool isOwn = configuration == mpComputation->getConfiguration().ptr();
        const QString prefix = isOwn ? QString() : configuration->getName() + QLatin1Char('.');
        for (const QString& path : configuration->getEntryMap().keys()) {
            names.append(prefix + path);
        }
    }
    for (const FManaged* parameter : FObjectManager::instance()->getManaged(FParameter::null())) {
        names.append(parameter->getName());
    }
    return names;
}

bool FSetUpTarget::set(const QString& assignment) const {
    const int sign = assignment.indexOf(QLatin1Char('='));
    const QString name = assignment.left(sign);
    if (sign <= 0) {
        fail(QStringLiteral("--set \"%1\" sets nothing").arg(assignment),
             QStringLiteral("Write --set NAME=VALUE, such as --set length=12.5"));
        return false;
    }
    QString remedy;
    const FPlace place = placeOf(name, remedy);
    if (!place.configuration && !place.parameter) {
        const QStringList known = knownNames();
        constexpr int mostShown = 10;
        const QString shown = known.isEmpty()
                                  ? QString()
                                  : QStringLiteral("Known are %1").arg(quotedList(known.mid(0, mostShown))) +
                                        (known.size() > mostShown ? QStringLiteral(" …") : QString());
        fail(QStringLiteral("--set: no entry or parameter has the name \"%1\"%2").arg(name, didYouMean(name, known)),
             remedy.isEmpty() ? shown : remedy);
        return false;
    }
    const QString text = assignment.mid(sign + 1);
    const FExprBase value = valueFor(place.present(), text);
    if (value.isEmpty()) {
        fail(QStringLiteral("--set: \"%1\" is no value for \"%2\"").arg(text, name),
             QStringLiteral("Give a number, such as %1=12.5, or an expression").arg(name));
        return false;
    }
    return place.set(value);
}

void FSetUpTarget::readSuppliers() const {
    for (FExternComputation* supplier : FComputationChain::suppliersOf(*mpComputation)) {
        if (!supplier->getCurrentResults() && supplier->getLastRecord()) {
            supplier->rereadResults();
        }
        const FComputationResults* results = supplier->getCurrentResults().ptr();
        const QString fault = results ? results->getFaultOfFiles() : QString();
        if (!fault.isEmpty()) {
            FLogMsg::warning(
                supplier->getName(),
                QStringLiteral("the results of its last run, which are used here, aren't valid (%1)").arg(fault),
                QStringLiteral("Run it again"));
        }
    }
}
