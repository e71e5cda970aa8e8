// What Print and Export take from the windows that roll tables and run scripts. Lines end with CR
// LF; paths are native; `program` is the program's title and version, `now` the date and time.
#pragma once

#include <string>
#include <string_view>

namespace quenloft {

std::string TableExportText(std::string_view title, std::string_view result, std::string_view path,
                            std::string_view program, std::string_view now);

std::string ScriptExportText(std::string_view output, std::string_view fileName,
                             std::string_view program, std::string_view now);

}  // namespace quenloft
