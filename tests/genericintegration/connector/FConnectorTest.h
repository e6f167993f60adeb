#pragma once

#include "genericintegration/connector/FSoftConObjectItem.h"
#include "genericintegration/connector/FSoftConScene.h"
#include "genericintegration/connector/FSoftConView.h"
#include "genericintegration/connector/FSoftwareConnector.h"
#include "tests/support/FTestFolder.h"
#include "tests/support/window/FWindowTest.h"

class QMimeData;

/** Tests of the window of a connector, in a project with a file. */
class FConnectorTest : public FWindowTest {
 public:
    /** A script that makes the connector `con` with two input templates and a result template. */
    static const char* const setUp;
    /** What `items` gives for that connector. */
    static const char* const allItems;

    FConnectorTest();
    ~FConnectorTest() override;

    /** Makes the connector and shows it in the window. */
    void open();
    FSoftwareConnector& connector() { return *object<FSoftwareConnector>("con"); }
    FSoftConScene& scene() { return *connector().getScene(); }
    /** The labels of the items, area by area. */
    std::string items();
    /** The item with that label. */
    FSoftConObjectItem* item(const QString& label);
    QStringList tabs();

    /** The point of the view at a point of the scene, scrolled into sight. */
    QPoint pointOf(const QPointF& scenePoint);
    QPoint centreOf(const QString& label);
    /** A point of the scene in that area and beside all items. */
    QPointF inArea(SoftConArea area);
    /** Drags over the view and drops there, as the window system does; false if it doesn't take the data. */
    bool drop(const QMimeData& data, const QPointF& place);
    /** The data of files dragged from the test's folder. */
    std::unique_ptr<QMimeData> filesOf(const QStringList& names) const;

    static QString lastStep();
    /** Undo and redo of the last step give exactly the texts and items before and after it. */
    void expectOneStep(const QString& before, const QString& label);

    FTestFolder folder;
};
