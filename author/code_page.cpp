#include "author/code_page.h"

#include <algorithm>
#include <array>
#include <iconv.h>
#include <iterator>

#include "platform/text_encoding.h"

namespace quenloft {
namespace {

struct CharsetEntry {
    int charset;
    int codePage;
};
constexpr CharsetEntry kCharsets[] = {
    {0, 1252},   {2, 1252},   {77, 10000}, {128, 932},  {129, 949},  {130, 1361}, {134, 936},
    {136, 950},  {161, 1253}, {162, 1254}, {163, 1258}, {177, 1255}, {178, 1256}, {186, 1257},
    {204, 1251}, {222, 874},  {238, 1250}, {254, 437},  {255, 850},
};

// Code pages whose name is not "CP" and the number.
struct NamedCodePage {
    int number;
    const char* name;
};
constexpr NamedCodePage kNames[] = {
    {1361, "JOHAB"}, {10000, "MACINTOSH"}, {28591, "ISO-8859-1"}, {65001, "UTF-8"}};

std::string ConverterName(int codePage) {
    const auto* named =
        std::find_if(std::begin(kNames), std::end(kNames),
                     [codePage](const NamedCodePage& page) { return page.number == codePage; });
    return named == std::end(kNames) ? "CP" + std::to_string(codePage) : named->name;
}

}  // namespace

int CodePageOfCharset(int charset) {
    const auto* found =
        std::find_if(std::begin(kCharsets), std::end(kCharsets),
                     [charset](const CharsetEntry& entry) { return entry.charset == charset; });
    return found == std::end(kCharsets) ? 0 : found->codePage;
}

struct CodePage::Converter {
    explicit Converter(iconv_t opened) : handle(opened) {}
    ~Converter() { iconv_close(handle); }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    iconv_t handle;
};

CodePage::CodePage(int number) : number_(number) {
    if (number == kWindows1252) {
        return;
    }
    iconv_t handle = iconv_open("UTF-8", ConverterName(number).c_str());
    if (handle != reinterpret_cast<iconv_t>(-1)) {
        converter_ = std::make_unique<Converter>(handle);
    }
}

CodePage::~CodePage() = default;

std::string CodePage::Decode(std::string_view bytes) {
    if (!converter_) {
        return FromWindows1252(bytes);
    }
    std::string text;
    std::string source(bytes);
    char* in = source.data();
    std::size_t inLeft = source.size();
    std::array<char, 1024> buffer;
    iconv(converter_->handle, nullptr, nullptr, nullptr, nullptr);
    while (inLeft > 0) {
        char* out = buffer.data();
        std::size_t outLeft = buffer.size();
        const std::size_t before = inLeft;
        iconv(converter_->handle, &in, &inLeft, &out, &outLeft);
        text.append(buffer.data(), out);
        if (inLeft == before && out == buffer.data()) {
            // Not of this code page, or cut off: on with the byte behind.
            text += FromWindows1252({in, 1});
            ++in;
            --inLeft;
        }
    }
    // Some converters hold the last character back, as another may combine with it.
    char* out = buffer.data();
    std::size_t outLeft = buffer.size();
    iconv(converter_->handle, nullptr, nullptr, &out, &outLeft);
    return text.append(buffer.data(), out);
}

}  // namespace quenloft
