#pragma once

#include <QAccessibleObject>

class FChainBox;
class FChainView;

/** What a screen reader knows of a box in the picture of chains. */
class FChainBoxAccessible : public QAccessibleObject, public QAccessibleActionInterface {
 public:
    explicit FChainBoxAccessible(FChainBox* box);

    QAccessibleInterface* parent() const override;
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QString text(QAccessible::Text kind) const override;
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override;
    QRect rect() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString& name) const override;

 private:
    FChainBox& box() const;
    FChainView* view() const;
};
