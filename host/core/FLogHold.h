#pragma once

#include "host/core/FExport.h"
#include "host/core/FLogMsg.h"

#include <QList>

/** While one exists, messages are kept instead of being sent. The innermost one takes them; at its end they are lost.
 */
class MERIX_EXPORT FLogHold {
 public:
    FLogHold();
    ~FLogHold();
    FLogHold(const FLogHold&) = delete;
    FLogHold& operator=(const FLogHold&) = delete;

    const QList<FLogMsg>& getMessages() const { return mMessages; }

 private:
    friend class FLogMsg;

    /** False if no hold exists. */
    static bool keep(const FLogMsg& message);

    FLogHold* mOuter;
    QList<FLogMsg> mMessages;
};
