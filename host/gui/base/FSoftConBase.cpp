#include "host/gui/base/FSoftConBase.h"

FClassData FSoftConBase::mClass("FSoftConBase", &FView::mClass);

FSoftConBase::FSoftConBase(const QString& name) : FClass(name) {}
