#include "tests/support/FModelTest.h"

#include "host/core/FAssert.h"
#include "host/core/FHistory.h"
#include "host/core/FLogMsg.h"
#include "host/core/FManaged.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FObjectManager.h"
#include "host/core/FPrototypes.h"
#include "host/core/FUserStep.h"
#include "host/script/FCmdInput.h"
#include "host/script/FCmdManager.h"
#include "host/script/FMemberCmd.h"

#include <QTextStream>

void FModelTest::clear() {
    const FHistoryBlocker blocker;
    const QList<FManaged*> objects = FObjectManager::instance()->getManaged(FManaged::null());
    const QList<FExpr<FManaged>> handles(objects.begin(), objects.end());
    for (auto object = handles.rbegin(); object != handles.rend(); ++object) {
        FManaged::destroy(object->ptr(), false);
    }
    FHistory::instance()->clear();
}

FModelTest::FModelTest() {
    FPrototypes::buildPending();
    clear();
    FLogMsg::setSink([this](const FLogMsg& message) { mLog.append(message.toLine()); });
    FAssert::setHandler([](const FAssert::Failure& failure) {
        ADD_FAILURE() << failure.place.toStdString() << ": " << failure.message.toStdString();
    });
}

FModelTest::~FModelTest() {
    clear();
    FMerixCtrl::instance()->setProjectFile(QString());
    FLogMsg::setSink(nullptr);
    FAssert::setHandler(nullptr);
}

bool FModelTest::run(const QString& script) {
    QString text = script;
    QTextStream stream(&text);
    FCmdInput input;
    input.readInputString(stream, QStringLiteral("test"));
    return input.exec();
}

void FModelTest::setAttribute(FManaged& object, const QString& attribute, const FExprBase& value) {
    const auto rows = FCmdManager::instance()->findMembers(object.getClassData(), attribute);
    ASSERT_FALSE(rows.empty()) << attribute.toStdString();
    auto* command = new FAttribCmd(*rows.front());
    const FExprBase keep(command);
    command->setReceiver(FExprBase(&object));
    command->setArguments({value});
    const FUserStep step(attribute);
    command->update();
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

FDirectTest::FDirectTest() {
    FAssert::setHandler([](const FAssert::Failure&) {});
}
