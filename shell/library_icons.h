// The icons of the library and of what is done with it, drawn when they are needed: sharp at any
// size, legible on light and on dark.
#pragma once

#include <QIcon>

namespace quenloft {

/// Closed, and open where its tree node is.
QIcon FolderIcon();
QIcon TableIcon();
QIcon ScriptIcon();

/// The pictures of the commands, for buttons and popup items.
struct CommandPictures {
    QIcon pctRun;
    QIcon pctRunAsNew;
    QIcon pctEdit;
    QIcon pctDelete;
    QIcon pctRefresh;
    QIcon pctNewDirectory;
};
CommandPictures MakeCommandPictures();

}  // namespace quenloft
