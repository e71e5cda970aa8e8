#include "shell/dropped_file.h"

#include <QDropEvent>
#include <QFile>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace quenloft {

std::vector<std::string> DraggedFiles(const QDropEvent& event) {
    std::vector<std::string> files;
    for (const QUrl& url : event.mimeData()->urls()) {
        const QString path = url.toLocalFile();
        if (QFileInfo(path).isFile()) {
            files.push_back(QFile::encodeName(path).toStdString());
        }
    }
    return files;
}

void AcceptAsCopy(QDropEvent& event) {
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

std::optional<std::string> AcceptDroppedFile(QDropEvent& event) {
    const std::vector<std::string> files = DraggedFiles(event);
    if (files.size() != 1 || event.mimeData()->urls().size() != 1) {
        return std::nullopt;
    }
    AcceptAsCopy(event);
    return files.front();
}

}  // namespace quenloft
