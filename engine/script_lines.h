// The lines of a script by their kinds.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "engine/file_notes.h"
#include "platform/file_system.h"

namespace quenloft {

/// A line can be of several kinds ("END IF" and a condition both begin with a keyword of their
/// own); which one counts is a matter of the interpreter's order.
enum LineKind : std::uint8_t {
    kOutputLine = 0,
    kStatementOnlyLine = 1 << 0,
    kEndLine = 1 << 1,
    kGotoLine = 1 << 2,
    kIfLine = 1 << 3,
    kElseLine = 1 << 4,
    kEndIfLine = 1 << 5,
    kLabelLine = 1 << 6,
};

inline constexpr std::string_view kGotoKeyword = "GOTO:";
inline constexpr std::string_view kIfKeyword = "IF";

/// LineKind bits of `line`, as StartsWithTrimmed tells them.
std::uint8_t KindsOf(std::string_view line);

/// Nothing but variable statements, each between two "??"; a blank outside them makes it an output
/// line.
bool IsStatementOnly(std::string_view line);

/// The index of `script`, made at the first call.
ScriptIndex& ScriptIndexOf(const TextFile& script);

/// The first line that begins with "LABEL:" and `label`, counted from 0; the number of lines where
/// there is none. Searched once a label.
std::size_t FindLabel(const TextFile& script, std::string_view label);

}  // namespace quenloft
