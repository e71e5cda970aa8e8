// Text between the two worlds: UTF-8 in `std::string` inside, QString in windows.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace quenloft {

/// Bytes that are not UTF-8 (a native path may hold some) are read as Windows-1252.
QString ToQt(std::string_view utf8);
std::string FromQt(const QString& text);

}  // namespace quenloft
