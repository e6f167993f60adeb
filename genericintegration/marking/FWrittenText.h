#pragma once

#include "genericintegration/marking/FTextRange.h"

#include <QString>

#include <vector>

class FConfiguration;
class FDefinitionGenInt;
class FGenIntFile;

/**
 * What a configuration writes for an input template, for an editor that shows it beside the template. Each line end is
 * "\n", so that positions are those of the two documents. A value whose evaluation would read files or start a program
 * is shown as its expression.
 */
struct FWrittenText {
    QString text{};
    std::vector<FTextRange> values{};  //!< in the text, in order; of a tag that names nothing, none
    std::vector<FTextRange> tags{};    //!< in the template

    static FWrittenText of(const FGenIntFile& file, const FConfiguration& configuration,
                           const FDefinitionGenInt& definition);
};
