#pragma once

#include "host/core/FExport.h"

#include <QWidget>

class QLineEdit;
class QListWidget;
class QTextBrowser;

/** The reference of classes and commands, made from the command tables, with a search. */
class MERIX_EXPORT FHelpPanel : public QWidget {
    Q_OBJECT

 public:
    FHelpPanel();

    /** Shows a class, a command, or "global" for the functions; the search field shows what is searched for. */
    void showTopic(const QString& topic);
    /** Shows a text in Markdown that isn't part of the reference. */
    void showText(const QString& markdown);

 protected:
    void showEvent(QShowEvent* event) override;

 private:
    void search(const QString& text);
    void fillTopics();
    void scrollToHeading(const QString& text);

    QLineEdit* mpSearch;
    QListWidget* mpTopics;
    QTextBrowser* mpText;
    QStringList mNames;  //!< of all classes and commands
};
