// The bytes of an RTF file as tokens.
#pragma once

#include <cstddef>
#include <string_view>

namespace quenloft {

struct RtfToken {
    enum class Kind {
        GroupStart,
        GroupEnd,
        Word,    ///< "\name" or "\name12": `text` is the name.
        Symbol,  ///< "\" and one character: `text` is that.
        Hex,     ///< "\'e9": `byte`.
        Text,    ///< Plain bytes without line ends: `text`.
        End,
    };
    Kind kind = Kind::End;
    std::string_view text = {};
    unsigned char byte = 0;
    bool hasNumber = false;
    int number = 0;  ///< Cut to what 32 bits hold.
};

/// Never fails: what is cut off or malformed is read as far as it goes. Binary data ("\bin") is
/// passed over. The tokens point into `bytes`, which must outlive them.
class RtfTokenizer {
  public:
    explicit RtfTokenizer(std::string_view bytes) : rest_(bytes) {}
    RtfToken Next();

  private:
    RtfToken ReadAfterBackslash();
    RtfToken ReadWord();
    RtfToken ReadHex();
    RtfToken ReadText();
    /// The next byte; NUL at the end.
    char Peek() const { return rest_.empty() ? '\0' : rest_.front(); }
    std::string_view Take(std::size_t count);

    std::string_view rest_;
};

}  // namespace quenloft
