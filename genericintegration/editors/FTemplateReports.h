#pragma once

#include "host/run/FSetUpCheck.h"

#include <QFrame>

class QLabel;
class QScrollArea;

/**
 * A strip above the text of a template that says what is wrong with it. A click on a report shows its place; where the
 * remedy is another name in a tag, a link puts it there.
 */
class FTemplateReports : public QFrame {
    Q_OBJECT

 public:
    explicit FTemplateReports(QWidget* parent);

    /** @param notices  what else the user should know about the text */
    void show(const FSetUpCheck::Problems& problems, const QStringList& notices);

 signals:
    void placeWanted(int line, int column);
    /** The same, for problems that concern a part of the template. */
    void chosen(const FSetUpProblem& problem);
    void correctionWanted(const QString& wrong, const QString& right);

 protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

 private:
    void fill();
    /** Takes as much height as the text needs, up to some lines; then it scrolls. */
    void fit();
    QString textOf(const FSetUpProblem& problem, int number) const;
    void follow(const QString& link);

    FSetUpCheck::Problems mProblems;
    QStringList mNotices;
    QLabel* mpText;
    QScrollArea* mpArea;
};
