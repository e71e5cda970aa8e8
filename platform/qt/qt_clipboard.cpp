#include "platform/qt/qt_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

#include "platform/qt/qt_text.h"

namespace quenloft {

std::string QtClipboard::GetText() { return FromQt(QGuiApplication::clipboard()->text()); }

void QtClipboard::SetText(const std::string& text) {
    QString out = ToQt(text);
    out.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    QGuiApplication::clipboard()->setText(out);
}

}  // namespace quenloft
