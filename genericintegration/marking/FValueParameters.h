#pragma once

#include "genericintegration/templates/FValueReference.h"

#include <QList>
#include <QString>

class FGenIntComputation;
class FGenIntResultsFile;

/** The parameters that read the values of a result template. */
namespace FValueParameters {

/** The computations that read their output with the template, in the order of creation. */
QList<FGenIntComputation*> readersOf(const FGenIntResultsFile& file);

/**
 * Has each parameter that consists of a reference to a value read the value under its new names. To call in a step.
 * @param before, after  names of the output file and the value; the computation is filled in
 */
void follow(const FGenIntResultsFile& file, FValueReference before, FValueReference after);

}  // namespace FValueParameters
