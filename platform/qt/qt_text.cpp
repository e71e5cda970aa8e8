#include "platform/qt/qt_text.h"

#include "platform/text_encoding.h"

namespace quenloft {

QString ToQt(std::string_view utf8) {
    if (IsUtf8(utf8)) {
        const QString text = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
        // Qt leaves a byte-order mark out; here it is a character like any other.
        return utf8.starts_with("\xEF\xBB\xBF") ? QChar(QChar::ByteOrderMark) + text : text;
    }
    return QString::fromStdString(FromWindows1252(utf8));
}

std::string FromQt(const QString& text) { return text.toStdString(); }

}  // namespace quenloft
