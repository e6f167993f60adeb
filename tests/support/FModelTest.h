#pragma once

#include "host/core/FObjectManager.h"

#include <gtest/gtest.h>

#include <QString>
#include <QStringList>

/** Tests on the model: each starts with an empty model and history, and sees what was logged. */
class FModelTest : public testing::Test {
 public:
    FModelTest();
    ~FModelTest() override;

    /** Empties model and history. */
    static void clear();
    /** Carries out a script; false if an error ended it. */
    bool run(const QString& script);
    /** The value of an expression. */
    static FExprBase evaluate(const QString& expression);
    static QString textOf(const QString& expression);
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
