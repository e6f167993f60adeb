#pragma once

#include <QString>

class FResultsGeneric;

/** The numbers of results as text for the standard output; a note if they are of an earlier set-up. */
class FTableOutput {
 public:
    enum class Form { Text, Csv, Json, Explained };

    static QString of(FResultsGeneric& results, Form form);
};
