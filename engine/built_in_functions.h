// The ten functions of expressions.
#pragma once

#include <optional>
#include <string_view>

#include "engine/host.h"
#include "engine/value.h"

namespace quenloft {

enum class BuiltIn { Sin, Cos, Tan, Sqr, Rnd, Log, Exp, Get, Val, Msg };

/// The function whose name and parenthesis ("SIN(", in any case) `text` begins with.
std::optional<BuiltIn> BuiltInAt(std::string_view text);
/// True when the name of a function, with its parenthesis, stands anywhere in `text`.
bool HoldsBuiltIn(std::string_view text);

/// GET( and MSG( take their argument as written; all others an evaluated one.
bool TakesTextAsWritten(BuiltIn function);
Value CallWithText(BuiltIn function, std::string_view argument, EngineHost& host);
/// Throws Failure.
Value CallWithValue(BuiltIn function, const Value& argument);

}  // namespace quenloft
