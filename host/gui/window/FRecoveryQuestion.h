#pragma once

#include "host/core/FExport.h"

#include <QString>

/** What is known of unsaved work that a session has left beside a project: its age and how it differs. */
class MERIX_EXPORT FRecoveryQuestion {
 public:
    enum class Answer { Recover, OpenSaved, Cancel };

    explicit FRecoveryQuestion(const QString& project);

    /** The question, with the age, the number of lines that differ and the first of them. */
    QString text() const;
    Answer ask() const;

 private:
    QString mProject;
};
