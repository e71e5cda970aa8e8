// A file that the user drops from a file manager.
#pragma once

#include <optional>
#include <string>

class QDropEvent;

namespace quenloft {

/// The native path of the one file that is being dragged, and the event accepted as a copy;
/// nothing, and the event left as it is, for anything else (a folder, several files, text).
std::optional<std::string> AcceptDroppedFile(QDropEvent& event);

}  // namespace quenloft
