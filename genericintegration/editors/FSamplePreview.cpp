#include "genericintegration/editors/FSamplePreview.h"

#include "genericintegration/editors/FResultsPreview.h"
#include "genericintegration/io/FGenIntReader.h"
#include "host/core/FMerixCtrl.h"

namespace {

constexpr int delay = 200;  // milliseconds

}  // namespace

FSamplePreview::FSamplePreview(const FExpr<FGenIntResultsFile>& file, FResultsPreview& table)
    : mFile(file), mTable(table) {
    mTimer.setSingleShot(true);
    mTimer.setInterval(delay);
    connect(&mTimer, &QTimer::timeout, this, &FSamplePreview::refresh);
}

void FSamplePreview::refreshSoon() {
    if (FMerixCtrl::instance()->isLoadingProject()) {
        refresh();
    } else {
        mTimer.start();
    }
}

void FSamplePreview::refresh() {
    mTimer.stop();
    FExpr<FTableData> table;
    if (mFile && !mFile->getPlainContent().isEmpty()) {
        table = FExpr<FTableData>(new FTableData);
        FGenIntReader::instance()->parseFile(mFile, table.ptr(), QString());
    }
    if (!table || table->count() == 0) {
        setBlank();
        return;
    }
    mTable.show(table);
    emit refreshed();
}

void FSamplePreview::setBlank() {
    mTable.setBlank();
}

void FSamplePreview::letGo() {
    mTimer.stop();
    mTable.letGo();
}
