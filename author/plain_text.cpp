#include "author/plain_text.h"

#include <algorithm>

#include "author/rich_text_builder.h"
#include "platform/text_encoding.h"

namespace quenloft {
namespace {

std::string_view TakeLine(std::string_view& text) {
    const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end);
    text.remove_prefix(text.starts_with("\r\n") ? 2 : text.empty() ? 0 : 1);
    return line;
}

constexpr std::string_view kLineEnd = "\r\n";

void AddLines(std::string& plain, std::string_view text) {
    constexpr std::string_view kLineSeparator = "\xE2\x80\xA8";  // U+2028.
    for (std::size_t end; (end = text.find(kLineSeparator)) != std::string_view::npos;) {
        plain += text.substr(0, end);
        plain += kLineEnd;
        text.remove_prefix(end + kLineSeparator.size());
    }
    plain += text;
}

}  // namespace

std::string PlainTextOf(const RichText& text) {
    std::string plain;
    for (const Paragraph& paragraph : text.paragraphs) {
        if (&paragraph != &text.paragraphs.front()) {
            plain += kLineEnd;
        }
        for (const TextRun& run : paragraph.runs) {
            AddLines(plain, run.text);
        }
    }
    return plain;
}

RtfContent ReadPlainText(std::string_view bytes) {
    if (bytes.starts_with("\xEF\xBB\xBF")) {
        bytes.remove_prefix(3);
    }
    const std::string text = DecodeText(bytes);
    RichTextBuilder document;
    for (std::string_view rest = text; !rest.empty() && !document.IsFull();) {
        document.AddText(TakeLine(rest), {});
        document.EndParagraph({}, {});
    }
    RtfContent content{document.Take(), {}};
    if (document.IsFull()) {
        content.losses.push_back(Loss::RestOfText);
    }
    return content;
}

}  // namespace quenloft
