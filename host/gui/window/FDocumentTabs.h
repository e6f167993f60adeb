#pragma once

#include "host/core/FExport.h"

#include <QTabWidget>

#include <functional>

/** The documents in the centre of the window: each has a key, and is there once. */
class MERIX_EXPORT FDocumentTabs : public QTabWidget {
    Q_OBJECT

 public:
    explicit FDocumentTabs(QWidget* parent);

    /** The document with that key; null if it isn't open. */
    QWidget* find(const QString& key) const;
    /** Shows the document with that key; makes it if it isn't open. */
    QWidget* open(const QString& key, const QString& title, const QIcon& icon, const std::function<QWidget*()>& make);
    void setTitle(const QString& key, const QString& title);
    /** Closes the document without taking over what was typed there, since what it shows may be gone. */
    void close(const QString& key);
    void closeAll();

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    void closeByUser(int index);
    void closeTab(int index);
};
