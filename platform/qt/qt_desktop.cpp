#include "platform/qt/qt_desktop.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>

#include "platform/qt/qt_text.h"

namespace quenloft {

bool QtDesktop::MoveToTrash(const std::string& nativePath) {
    return QFile::moveToTrash(QFile::decodeName(QByteArray::fromStdString(nativePath)));
}

bool QtDesktop::StartProgram(const std::string& name, const std::vector<std::string>& arguments) {
    const QString program = QStandardPaths::findExecutable(ToQt(name));
    QStringList list;
    for (const std::string& argument : arguments) {
        list.append(ToQt(argument));
    }
    return !program.isEmpty() && QProcess::startDetached(program, list);
}

}  // namespace quenloft
