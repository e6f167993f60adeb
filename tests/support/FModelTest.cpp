#include "tests/support/FModelTest.h"

#include "host/core/FHistory.h"
#include "host/core/FLogMsg.h"
#include "host/core/FManaged.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FObjectManager.h"
#include "host/core/FPrototypes.h"
#include "host/script/FCmdInput.h"

#include <QTextStream>

void FModelTest::clear() {
    const FHistoryBlocker blocker;
    const QList<FManaged*> objects = FObjectManager::instance()->getManaged(FManaged::null());
    for (auto object = objects.rbegin(); object != objects.rend(); ++object) {
        FManaged::destroy(*object, false);
    }
    FHistory::instance()->clear();
}

FModelTest::FModelTest() {
    FPrototypes::buildPending();
    clear();
    FLogMsg::setSink([this](const FLogMsg& message) { mLog.append(message.toLine()); });
}

FModelTest::~FModelTest() {
    clear();
    FMerixCtrl::instance()->setProjectFile(QString());
    FLogMsg::setSink(nullptr);
}

bool FModelTest::run(const QString& script) {
    QString text = script;
    QTextStream stream(&text);
    FCmdInput input;
    input.readInputString(stream, QStringLiteral("test"));
    return input.exec();
}

FExprBase FModelTest::evaluate(const QString& expression) {
    FExprBase bound;
    bound.resolve(expression);
    return FExprBase(bound.getObject());
}

QString FModelTest::textOf(const QString& expression) {
    return evaluate(expression).toString();
}

QString FModelTest::saved(const FManaged& object) {
    QString text;
    QTextStream stream(&text);
    object.saveScopeManner(stream, 0, false, false);
    stream.flush();
    return text;
}

QString FModelTest::savedModel() {
    QString text;
    for (const FManaged* object : FObjectManager::instance()->getManaged(FManaged::null())) {
        text += saved(*object);
    }
    return text;
}
