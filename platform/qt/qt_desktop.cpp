#include "platform/qt/qt_desktop.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include "platform/qt/qt_text.h"

namespace quenloft {
namespace {

/// Makes the user's trash where there is none yet. Without one Qt would take the current folder for
/// it.
bool HasTrash() {
    const QDir data(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    const QFileInfo trash(data.filePath(QStringLiteral("Trash")));
    if (!trash.exists()) {
        constexpr auto kOwnerOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
        return data.mkpath(QStringLiteral(".")) && data.mkdir(trash.fileName(), kOwnerOnly);
    }
    return trash.isDir() && trash.isWritable();
}

}  // namespace

bool QtDesktop::MoveToTrash(const std::string& nativePath) {
    return HasTrash() &&
           QFile::moveToTrash(QFile::decodeName(QByteArray::fromStdString(nativePath)));
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
