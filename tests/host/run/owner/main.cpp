#include "host/run/FProcess.h"

#include <QCoreApplication>

// Runs an external program until it is killed: the tests need an owner of a process that can die.
// Arguments: grace in seconds, working folder, program, its arguments.
int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    FProcessSetup setup;
    setup.grace = arguments.takeFirst().toDouble();
    setup.workingFolder = arguments.takeFirst();
    setup.program = arguments.takeFirst();
    setup.arguments = arguments;
    FProcess process(setup);
    QObject::connect(&process, &FProcess::finished, &application, &QCoreApplication::quit);
    process.start();
    return QCoreApplication::exec();
}
