#pragma once

/**
 * The pointing hand while the pointer is over an item or its parts. It goes with the item that holds it, since an item
 * that is removed under the pointer isn't told that the pointer left it.
 */
class FHoverCursor {
 public:
    FHoverCursor() = default;
    ~FHoverCursor() { clear(); }
    FHoverCursor(const FHoverCursor&) = delete;
    FHoverCursor& operator=(const FHoverCursor&) = delete;

    /** Calls of `enter` and `leave` nest; a `leave` too many does nothing. */
    void enter();
    void leave();
    void clear();
    bool isOn() const { return mDepth > 0; }

 private:
    int mDepth = 0;
};
