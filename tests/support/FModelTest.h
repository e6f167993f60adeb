#pragma once

#include "host/core/FManaged.h"
#include "host/core/FObjectManager.h"
#include "host/script/FCmdType.h"

#include <gtest/gtest.h>

#include <QString>
#include <QStringList>

/**
 * Tests on the model: each starts with an empty model and history, and sees what was logged. A change outside of any
 * step of the history fails the test.
 */
class FModelTest : public testing::Test {
 public:
    FModelTest();
    ~FModelTest() override;

    /** Empties model and history. */
    static void clear();
    /** Executes a script; false if an error ended it. */
    bool run(const QString& script);
    /** The value of an expression. */
    static FExprBase evaluate(const QString& expression);
    static QString textOf(const QString& expression);
    /** Sets an attribute through its command, as one step. */
    template <class V>
    static void set(FManaged& object, const QString& attribute, const V& value) {
        setAttribute(object, attribute, FCmdTypeOf<V>::handle(value));
    }
    static void setAttribute(FManaged& object, const QString& attribute, const FExprBase& value);
    /** The managed object of a name; null if there is none, or one of another class. */
    template <class T>
    static T* object(const QString& name) {
        return dynamic_cast<T*>(FObjectManager::instance()->find(name));
    }
    static QString saved(const FManaged& object);
    /** All objects of the model as saved text. */
    static QString savedModel();
    /** Log lines since the start of the test. */
    const QStringList& log() const { return mLog; }
    bool logHolds(const QString& text) const { return mLog.join('\n').contains(text); }
    std::string logText() const { return mLog.join('\n').toStdString(); }

 private:
    QStringList mLog;
};

/** Tests of single classes, which change objects without a step: each change becomes a step of its own. */
class FDirectTest : public FModelTest {
 public:
    FDirectTest();
};
