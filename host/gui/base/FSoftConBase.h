#pragma once

#include "host/core/FExport.h"
#include "host/core/FView.h"
#include "host/design/FConnectorInterface.h"

#include <QTabWidget>

/** A software connector that is a widget with tabs. Handles own it: Qt must never delete it as somebody's child. */
class MERIX_EXPORT FSoftConBase : public FClass<FSoftConBase, QTabWidget, FView>, public FConnectorInterface {
    Q_OBJECT

 public:
    static FClassData mClass;
    static constexpr bool needsWindows = true;

    explicit FSoftConBase(const QString& name = QString());
};
