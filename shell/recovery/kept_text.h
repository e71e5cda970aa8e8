// The unsaved text of a window as it is kept for the time after a crash.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quenloft {

struct KeptText {
    std::string form;       ///< Form name of the window that it stood in.
    std::string path;       ///< Native path of its file; empty where it was never saved.
    std::string base;       ///< Fingerprint of what that file held when the window knew it last.
    std::int64_t when = 0;  ///< In seconds since 1970.
    std::string text;       ///< In the window's own form (see ChildWindow::PutBack).
};

/// The bytes of a file that holds it. Its fields and text stand as they are: even without this
/// program nothing is lost.
std::string BytesOfKept(const KeptText& kept);
/// Nothing where `bytes` are not such a file, or not all of one.
std::optional<KeptText> KeptOfBytes(std::string_view bytes);

}  // namespace quenloft
