#include "host/core/FModel.h"

FModel* FModel::instance() {
    static FModel model;
    return &model;
}
