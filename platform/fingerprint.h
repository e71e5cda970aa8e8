// A short mark of many bytes.
#pragma once

#include <string>
#include <string_view>

namespace quenloft {

/// Tells one content of a file from another, also when it is compared by a later start of the
/// program: size and hash (64-bit FNV-1a, about a gigabyte a second), as printable text. No secret
/// and no proof against somebody who means to mislead.
std::string Fingerprint(std::string_view bytes);

}  // namespace quenloft
