#pragma once

class FGenIntComputation;
class QWidget;

/** Saves a set-up, or the chain that it is part of, to a file that the user names. */
namespace FConnectorExport {

void run(const FGenIntComputation& computation, QWidget* parent);

}  // namespace FConnectorExport
