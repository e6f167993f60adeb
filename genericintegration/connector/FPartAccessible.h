#pragma once

#include <QAccessibleObject>

class FSoftConObjectItem;
class QAbstractButton;
class QGraphicsItem;
class QGraphicsView;

/** What a screen reader knows of a button or an item in the view of a connector. */
class FPartAccessible : public QAccessibleObject, public QAccessibleActionInterface {
 public:
    /** @param part  see isPart */
    explicit FPartAccessible(QObject* part) : QAccessibleObject(part) {}

    /** Whether the object is an item, or a button in the scene of a connector. */
    static bool isPart(QObject* object);

    QAccessibleInterface* parent() const override;
    /** An item has the button that deletes it. */
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    QRect rect() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    /** The first one is the default: a button is pressed, an item is selected. */
    QStringList actionNames() const override;
    QString localizedActionName(const QString& name) const override;
    QString localizedActionDescription(const QString& name) const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString& name) const override;

 private:
    const QGraphicsItem* graphicsItem() const;
    FSoftConObjectItem* item() const;
    QAbstractButton* button() const;
    QGraphicsView* view() const;
    QString description() const;
    void setFocus();
    void showMenu();
};
