#pragma once

#include <cstddef>

namespace quenloft {

/// Bytes of stack between the caller's frame and the end of the thread's stack.
std::size_t StackBytesLeft();

}  // namespace quenloft
