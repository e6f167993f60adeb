#pragma once

#include <QPointer>

class FSoftConObjectItem;
class FSoftConScene;
class QKeyEvent;
class QObject;

/**
 * A connector's scene by keyboard. Tab goes from its items to its buttons and on; within each of the two, the arrow
 * keys go to the nearest one in their direction. Enter opens an item or presses a button, Space selects an item, Delete
 * or Ctrl+Delete removes it.
 */
class FSceneKeys {
 public:
    explicit FSceneKeys(FSoftConScene& scene);

    /** False for a key that means nothing here. */
    bool press(const QKeyEvent& event);
    /** Tab within the scene; false if it leaves it. */
    bool goOn(bool isForward);
    /** Tab from outside: to the items, or backward to the buttons. */
    void enter(bool isForward);
    /** Whether an item has the focus that can be removed. */
    bool isAtRemovable() const;
    /** Removes the item that has the focus; false if there is none. */
    bool remove();
    /** The same of the item that had it last, such as before a menu was opened. */
    bool removeLast();
    /** The part that has the focus, or had it last, of the items or of the buttons. */
    void remember(QObject* part);

 private:
    bool isAtButton() const;
    bool isAtItem() const;
    void focusItems();
    void focusButtons();
    bool move(int key);
    bool open();
    bool select();
    bool remove(FSoftConObjectItem* item);

    FSoftConScene& mScene;
    QPointer<QObject> mpLastItem;
    QPointer<QObject> mpLastButton;
};
