#include "merix/FCheckSubcommand.h"

#include "host/core/FFile.h"
#include "host/core/FLogMsg.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FObjectManager.h"
#include "host/core/FPrototypes.h"
#include "host/core/FStandardOutput.h"
#include "host/lodm/FCustomComputation.h"
#include "host/script/FCmdInput.h"
#include "host/script/FProject.h"
#include "merix/FExitCode.h"
#include "merix/FProblemOutput.h"
#include "merix/FSetUpTarget.h"
#include "merix/textList.h"

#include <QFile>

#include <iostream>

namespace {

bool isProject(const QString& path) {
    QFile file(path);
    return path.endsWith(QStringLiteral(".mrx")) ||
           (FFile::openOrdinary(file).isEmpty() && file.readLine(100).startsWith("// merix project"));
}

/** Collects warnings and errors as problems while it exists, and has other output go to the standard error. */
class Collector {
 public:
    explicit Collector(FSetUpCheck::Problems& problems) : mOutput(std::cout.rdbuf(std::cerr.rdbuf())) {
        mSink = FLogMsg::setSink([this, &problems](const FLogMsg& message) { take(message, problems); });
    }
    ~Collector() {
        FLogMsg::setSink(mSink);
        std::cout.rdbuf(mOutput);
    }
    Collector(const Collector&) = delete;
    Collector& operator=(const Collector&) = delete;

 private:
    void take(const FLogMsg& message, FSetUpCheck::Problems& problems) const {
        const bool isError = message.kind == FLogMsg::Kind::Error;
        if (message.kind == FLogMsg::Kind::Info) {
            mSink(message);
        } else {
            problems.append({isError ? FSetUpProblem::Severity::Error : FSetUpProblem::Severity::Warning,
                             message.source, message.place, message.message, message.consequence});
        }
    }

    std::streambuf* mOutput;
    FLogMsg::Sink mSink;
};

FSetUpCheck::Problems problemsOf(const FManaged* object) {
    const auto* computation = dynamic_cast<const FExternComputation*>(object);
    return computation ? FSetUpCheck::problemsOf(*computation, false) : FSetUpCheck::Problems();
}

}  // namespace

std::vector<FSubcommand::Argument> FCheckSubcommand::arguments() {
    return {{"FILE", "The project or script; \"-\" reads a script from the standard input", &mFile, true},
            {"--json", "As JSON", &mJson},
            {"--computation NAME", "Of a project, only this computation", &mComputation},
            {"--argument TEXT", "Available to the script in the list \"arguments\"; can be repeated", &mArguments}};
}

int FCheckSubcommand::run() const {
    const QString path = QString::fromStdString(mFile);
    FSetUpCheck::Problems problems;
    FMerixCtrl::instance()->setReadOnly(true);
    const int exitCode = isProject(path) ? checkProject(path, problems) : checkScript(path, problems);
    const FProblemOutput output(problems);
    if (exitCode == FExitCode::done || !problems.isEmpty()) {
        FStandardOutput::write(mJson ? output.toJson() : output.toText());
    }
    return exitCode == FExitCode::done && output.hasErrors() ? FExitCode::failed : exitCode;
}

int FCheckSubcommand::checkProject(const QString& path, FSetUpCheck::Problems& problems) const {
    Collector collector(problems);
    const bool isOpen = FSetUpTarget::openProject(path, FSetUpTarget::Access::Read) == FExitCode::done;
    const QString name = QString::fromStdString(mComputation);
    const QStringList names = FSetUpTarget::computationNames();
    if (!isOpen && names.isEmpty()) {
        return FExitCode::fileError;
    }
    if ((!name.isEmpty() || names.isEmpty()) && !FSetUpTarget::find(name)) {
        return FExitCode::wrongCall;
    }
    for (const QString& checked : name.isEmpty() ? names : QStringList(name)) {
        problems += problemsOf(FObjectManager::instance()->find(checked));
    }
    return FExitCode::done;
}

int FCheckSubcommand::checkScript(const QString& path, FSetUpCheck::Problems& problems) const {
    FPrototypes::buildPending();
    FCmdInput input;
    if (const QString fault = input.readFile(path); !fault.isEmpty()) {
        FLogMsg::error(QStringLiteral("merix"), QStringLiteral("can't read the script \"%1\": %2").arg(path, fault));
        return FExitCode::fileError;
    }
    input.setVariable(QStringLiteral("arguments"), textList(mArguments));
    Collector collector(problems);
    QStringList checked;
    FSetUpCheck::setSubstituteForRuns([&](const FExternComputation& computation) {
        problems += problemsOf(&computation);
        checked.append(computation.getName());
    });
    input.exec();
    for (const QString& name : FSetUpTarget::computationNames()) {
        if (!checked.contains(name)) {
            problems += problemsOf(FObjectManager::instance()->find(name));
        }
    }
    FSetUpCheck::setSubstituteForRuns({});
    return FExitCode::done;
}
