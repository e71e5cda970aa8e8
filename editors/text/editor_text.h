// What the text editor says and hands out. Paths are native, text is UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace quenloft {

inline constexpr char kEditorFilter[] =
    "Scripts(*.spt)|*.spt|Table(*.tbl)|*.tbl|All files(*.*)|*.*";
/// The entry of that filter, counted from 1, that the file at `path` belongs to.
int EditorFilterIndex(std::string_view path);

inline constexpr char kSaveBeforeClosing[] = "Script not saved!\r\nSave script now?";
inline constexpr char kSaveBeforeReferring[] =
    "In order to display the full resource list, the script must be saved first!";
std::string SaveBeforeNewQuestion(std::string_view path);
std::string DeleteFileQuestion(std::string_view path);
/// `cause` is a sentence without its stop.
std::string ReadFailure(std::string_view path, std::string_view cause);

/// Lines end with CR LF; `program` is the program's title and version, `now` the date and time.
std::string EditorExportText(std::string_view text, std::string_view fileName,
                             std::string_view program, std::string_view now);

/// What the reference browser returned, as it is to stand in the text: there "{^}" is "^", "{~}"
/// is "~".
std::string PlainReference(std::string_view reference);

}  // namespace quenloft
