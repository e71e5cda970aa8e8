// The unsaved work of an editor whose text stands in one plain text box.
#pragma once

#include <optional>

#include "shell/child_window.h"

class QPlainTextEdit;

namespace quenloft {

class EditedFile;

/// Nothing where `box` was not changed, or is empty and has no file. Its text is lines with "\n"
/// between them, as EditedFile reads and saves them. `box` outlives the next call of the snapshot.
std::optional<UnsavedWork> UnsavedLines(const QPlainTextEdit& box, const EditedFile& file);

}  // namespace quenloft
