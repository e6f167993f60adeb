#pragma once

class FCmdTable;

/** The script commands on the entries of a definition. */
void definitionCommands(FCmdTable& table);
