#include "platform/qt/qt_desktop.h"

#include <QFile>

namespace quenloft {

bool QtDesktop::MoveToTrash(const std::string& nativePath) {
    return QFile::moveToTrash(QFile::decodeName(QByteArray::fromStdString(nativePath)));
}

}  // namespace quenloft
