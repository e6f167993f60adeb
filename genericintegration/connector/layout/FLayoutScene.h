#pragma once

/** What a layout asks of the scene whose items it places. */
class FLayoutScene {
 public:
    virtual void calcItemRatios() = 0;
    /** Has the scene laid out once, however often it is called before that. */
    virtual void requestRedraw() = 0;

 protected:
    FLayoutScene() = default;
    ~FLayoutScene() = default;
    FLayoutScene(const FLayoutScene&) = default;
    FLayoutScene& operator=(const FLayoutScene&) = default;
};
