// Print and Export of the File menu.
#pragma once

namespace quenloft {

class ChildWindow;
struct ServiceSet;

/// What a window's name asks for; nothing for other windows, and for none at all (null).
void PrintWindow(ChildWindow* child, const ServiceSet& services);
void ExportWindow(ChildWindow* child, const ServiceSet& services);

}  // namespace quenloft
