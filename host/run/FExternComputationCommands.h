#pragma once

class FCmdTable;

/** The script commands of a computation by an external program. */
void externComputationCommands(FCmdTable& table);
