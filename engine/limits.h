// Where a run ends that would never end by itself.
#pragma once

#include <cstddef>

namespace quenloft {

/// Generated text is read by people: a result of 16 MiB is a table that feeds itself.
inline constexpr std::size_t kLargestOutput = std::size_t{16} << 20;

/// Throws RunStopped when `size` bytes of text are past kLargestOutput.
void CheckOutputSize(std::size_t size);

/// Stack that a run leaves free: event handlers paint windows inside a yield at any depth.
inline constexpr std::size_t kStackReserve = std::size_t{1} << 20;

}  // namespace quenloft
