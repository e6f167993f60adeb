#pragma once

#include "host/core/FManaged.h"

#include <functional>

/** A managed class of the tests: a number, a text, and a friend that it depends on and that goes with it. */
class FThing : public FClass<FThing, FManaged> {
 public:
    static FClassData mClass;

    static FThing* create(const QString& name);

    double getNumber() const { return mNumber; }
    FThing* setNumber(double number);
    const QString& getText() const { return mText; }
    void setText(const QString& text) { mText = text; }
    const FExpr<FThing>& getFriend() const { return mFriend; }
    void setFriend(const FExpr<FThing>& other);
    int add(int a, int b) const { return a + b; }

    bool doUpdate() const override;
    mutable int mUpdates = 0;
    std::function<void()> mAtUpdate = [] {};

 protected:
    explicit FThing(const QString& name = QString()) : FClass(name) {}
    void leaveModel() override;
    void letGo() override { setFriend({}); }

 private:
    friend class FClass<FThing, FManaged>;

    static std::vector<std::unique_ptr<FStateField>> fields();

    double mNumber = 0;
    QString mText;
    FExpr<FThing> mFriend;
};
