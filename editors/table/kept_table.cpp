#include "editors/table/kept_table.h"

#include <algorithm>

namespace quenloft {
namespace {

std::string_view TakeLine(std::string_view& text) {
    const std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    return line;
}

}  // namespace

std::string KeptTable(const TableContent& content) {
    std::string text = content.title + '\n' + content.modifier + '\n';
    for (const TableRow& row : content.rows) {
        text.append(row.frequency).append("\n").append(row.entry).append("\n");
    }
    return text;
}

TableContent TableOfKept(std::string_view text) {
    TableContent content;
    content.title = TakeLine(text);
    content.modifier = TakeLine(text);
    while (!text.empty()) {
        TableRow& row = content.rows.emplace_back();
        row.frequency = TakeLine(text);
        row.entry = TakeLine(text);
    }
    return content;
}

std::string ReadableTable(const TableContent& content) {
    std::string text = content.title + '\n';
    if (!content.modifier.empty()) {
        text += content.modifier + '\n';
    }
    for (const TableRow& row : content.rows) {
        text.append(row.frequency).append("\t").append(row.entry).append("\n");
    }
    return text;
}

}  // namespace quenloft
