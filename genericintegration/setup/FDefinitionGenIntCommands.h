#pragma once

class FCmdTable;

/** The script commands of FDefinitionGenInt. */
void definitionGenIntCommands(FCmdTable& table);
