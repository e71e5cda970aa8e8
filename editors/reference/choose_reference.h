// The reference browser as the editors call it.
#pragma once

#include <string>

class QWidget;

namespace quenloft {

class Workspace;

/// Lets the user choose a table or script, beginning in `folder` (any path; the current folder
/// where it is empty), which references are relative to. Returns what is to be typed for it: "#" +
/// path + name + "#", with "{^}" and a count in front of the last "#" where it is to be repeated
/// (keystrokes for "^"); a lone "#" where the user wants no more than that; "" when cancelled. The
/// window of `parent` may be gone when this returns.
std::string ChooseReference(Workspace& workspace, const std::string& folder, QWidget* parent);

}  // namespace quenloft
