// 8-bit and multibyte text of other systems, as files name it by code page or character set.
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace quenloft {

inline constexpr int kWindows1252 = 1252;

/// The code page that fonts of a Windows character set use; 0 for sets that leave it to the file.
int CodePageOfCharset(int charset);

/// Decodes the bytes of one code page.
class CodePage {
  public:
    /// `number` is a Windows code page (1250, 932, 65001 ...); 1252 where it is not known.
    explicit CodePage(int number);
    ~CodePage();
    CodePage(const CodePage&) = delete;
    CodePage& operator=(const CodePage&) = delete;

    int Number() const { return number_; }
    /// UTF-8. A byte that belongs to no character of the code page is read as Windows-1252.
    std::string Decode(std::string_view bytes);

  private:
    struct Converter;
    const int number_;
    std::unique_ptr<Converter> converter_;  // None for Windows-1252.
};

}  // namespace quenloft
