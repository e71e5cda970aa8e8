// Arithmetic: "(3+x)*2", "SIN(30)*2", "hp<20".
#pragma once

#include <string>
#include <string_view>

#include "engine/host.h"
#include "engine/value.h"
#include "engine/variable_store.h"

namespace quenloft {

/// Evaluates `text`. Operators from loose to tight: + - < > = & <= >=, then %, \, * /, ^; all group
/// from the left, a sign binds tighter than any. Operands are numbers, names of variables, calls of
/// the ten functions, parentheses; anything else stands for itself as text.
/// GET( and MSG( ask through `host`. Time is linear in the text, depth is bound by memory only.
/// Throws Failure: 1001 and 1002 for parentheses, type mismatch, overflow, division by zero,
/// invalid argument.
Value EvaluateExpr(std::string_view text, const VariableStore& variables, EngineHost& host);

/// True when `text` is to be evaluated at all: it holds an arithmetic operator or the name of a
/// function, or is the name of a variable, and is not hash-quoted. < > = & alone do not count.
bool IsExpression(std::string_view text, const VariableStore& variables);

/// Longer than one character, and "#" is the first and the last.
bool IsHashQuoted(std::string_view text);

}  // namespace quenloft
