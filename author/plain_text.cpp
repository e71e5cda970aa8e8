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

}  // namespace

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
