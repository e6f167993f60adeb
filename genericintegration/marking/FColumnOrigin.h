#pragma once

#include <optional>

class FResultSample;
struct FSeparatorSettings;
struct FValueDescription;

/**
 * Where the columns of a value count from. In the line of its anchor, they count from there; those of an average always
 * count from the start of the line.
 */
namespace FColumnOrigin {

/** The column, from the start of its line, of the number that a value reads in a sample; nothing if it reads none. */
std::optional<int> fromLine(const FResultSample& sample, const FSeparatorSettings& separators,
                            const FValueDescription& value);

/** The other way round: the column of a value, from its anchor. Nothing if that isn't before the number in its line. */
std::optional<int> fromAnchor(const FResultSample& sample, const FSeparatorSettings& separators,
                              const FValueDescription& value);

}  // namespace FColumnOrigin
