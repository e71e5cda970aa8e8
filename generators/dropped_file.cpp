#include "generators/dropped_file.h"

#include <QDropEvent>
#include <QFile>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace quenloft {

std::optional<std::string> AcceptDroppedFile(QDropEvent& event) {
    const QList<QUrl> urls = event.mimeData()->urls();
    if (urls.size() != 1 || !urls[0].isLocalFile()) {
        return std::nullopt;
    }
    const QString path = urls[0].toLocalFile();
    if (!QFileInfo(path).isFile()) {
        return std::nullopt;
    }
    // Never as a move: the file manager would delete the file.
    event.setDropAction(Qt::CopyAction);
    event.accept();
    return QFile::encodeName(path).toStdString();
}

}  // namespace quenloft
