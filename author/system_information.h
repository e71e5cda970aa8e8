// The desktop's own tool that shows what the machine is made of.
#pragma once

namespace quenloft {

class Desktop;

/// Starts the first of the known tools that is installed; false where none is.
bool StartSystemInformation(Desktop& desktop);

}  // namespace quenloft
