#include "platform/qt/qt_text.h"

#include "platform/text_encoding.h"

namespace quenloft {

QString ToQt(std::string_view utf8) {
    if (IsUtf8(utf8)) {
        return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
    }
    return QString::fromStdString(FromWindows1252(utf8));
}

std::string FromQt(const QString& text) { return text.toStdString(); }

}  // namespace quenloft
