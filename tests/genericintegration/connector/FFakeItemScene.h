#pragma once

#include "genericintegration/connector/FItemScene.h"
#include "genericintegration/connector/FSoftConObjectItem.h"
#include "genericintegration/connector/layout/FSoftConLayout.h"

#include <QGraphicsScene>
#include <QStringList>

#include <memory>

/** A scene that takes note of what its items want. Without a drag event, `dragged` is what is dragged. */
class FFakeItemScene final : public QGraphicsScene, public FItemScene {
 public:
    explicit FFakeItemScene(const FExpr<FExternComputation>& computation) : mComputation(computation) {}

    /** An item of that class for an object, as a connector shows it. */
    template <class Item>
    Item* add(const FExpr<FObject>& object, SoftConArea area) {
        auto* item = new Item(this, nullptr, object, area, QString());
        item->updateItem();
        item->doUpdate();
        return item;
    }
    /** The same with a new object. */
    template <class Item>
    Item* make(const FExpr<FObject>& type, SoftConArea area, const QString& path, const QString& relativePath) {
        auto* item = new Item(this, nullptr, type, area, QString());
        item->createObject(path, relativePath);
        item->updateItem();
        item->doUpdate();
        return item;
    }

    void calcItemRatios() override {}
    void requestRedraw() override { calls.append("redraw"); }
    QGraphicsScene* asGraphicsScene() override { return this; }
    FSoftConLayout* getLayout() const override { return layout.get(); }
    FExpr<FExternComputation> getComputation() const override { return mComputation; }
    void setComputationItemSize(const QSizeF& size) override { computationSize = size; }
    void callEditor(const FSoftConObjectItem* item) override { calls.append("edit " + item->getObject().toString()); }
    void emphasisChanged(const FSoftConObjectItem* item) override { Q_UNUSED(item) }
    void gotoTab(const FExpr<FGenIntFile>& file) override { calls.append("tab " + nameOf(file)); }
    void triggerAddTab(const FExpr<FGenIntFile>& file) override { calls.append("add tab " + nameOf(file)); }
    void setTabName(const FExpr<FGenIntFile>& file) override { calls.append("name tab " + nameOf(file)); }
    FSoftConObjectItem* createItem(QGraphicsItem* parent, const FExpr<FObject>& object, const QString& path,
                                   const QString& relativePath) override;
    void deleteItem(FSoftConObjectItem* item) override;
    FExpr<FObjectList> extractFObjectMimeData(const QGraphicsSceneDragDropEvent* event) const override {
        Q_UNUSED(event)
        return dragged;
    }
    void runComputation() override { calls.append("run"); }
    void readResults() override { calls.append("read"); }
    void showOutputFilesPreview() override { calls.append("preview"); }
    void exportIntegration() override { calls.append("export"); }

    std::string takeCalls() { return std::exchange(calls, {}).join(", ").toStdString(); }

    std::unique_ptr<FSoftConLayout> layout;
    FExpr<FObjectList> dragged;
    QSizeF computationSize;
    QStringList calls;

 private:
    static QString nameOf(const FExpr<FGenIntFile>& file) { return file ? file->getFileName() : "-"; }

    FExpr<FExternComputation> mComputation;
};
