// Files that the user drops from a file manager.
#pragma once

#include <optional>
#include <string>
#include <vector>

class QDropEvent;

namespace quenloft {

/// The native paths of the files that are being dragged; folders are left out.
std::vector<std::string> DraggedFiles(const QDropEvent& event);

/// Takes the drag as a copy: as a move, the file manager would delete the file.
void AcceptAsCopy(QDropEvent& event);

/// The native path of the one file that is being dragged, and the event accepted as a copy;
/// nothing, and the event left as it is, for anything else (a folder, several files, text).
std::optional<std::string> AcceptDroppedFile(QDropEvent& event);

}  // namespace quenloft
