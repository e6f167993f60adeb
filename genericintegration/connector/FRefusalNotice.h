#pragma once

#include <QObject>
#include <QStringList>

/**
 * While it exists, the user adds files to a connector. What connectors report meanwhile of files that they didn't take,
 * or not as expected, is shown in the window at the end, not only in the log.
 */
class FRefusalNotice : public QObject {
 public:
    FRefusalNotice();
    ~FRefusalNotice() override;

 private:
    QStringList mTexts;
};
