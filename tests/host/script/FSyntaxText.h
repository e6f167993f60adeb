#pragma once

#include "host/script/FScriptParser.h"

/** Syntax as text with all brackets written, for comparison. Read again it gives the same syntax. */
std::string syntaxText(const FSyntaxExpr& expression);

/** The statements and then the errors, each in a line of its own. */
std::string syntaxText(const FScript& script);
