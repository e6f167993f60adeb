#pragma once

#include <QSplitter>

/** A division of two panes that comes back the next time, from the settings of the user. */
class FKeptSplitter : public QSplitter {
    Q_OBJECT

 public:
    /**
     * @param key  in the settings
     * @param usual  the division as long as the user has made none, in the form of `saveState`, as base64
     */
    FKeptSplitter(const char* key, const char* usual, QWidget* parent);

    /** Takes over the division that was kept; to call when the panes are there. */
    void restore();
    void keep() const;

 private:
    QString mKey;
    QByteArray mUsual;
};
