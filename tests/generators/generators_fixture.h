// The program with the windows that roll tables and run scripts, and editors that record.
#pragma once

#include <QMdiSubWindow>
#include <QMimeData>
#include <QUrl>

#include "generators/list_single_window.h"
#include "generators/lists_window.h"
#include "generators/script_window.h"
#include "shell/form_names.h"
#include "shell/text_box.h"
#include "tests/support/recording_window.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {

class GeneratorsFixture : public WindowsFixture {
  protected:
    GeneratorsFixture() {
        WriteTable("lib/orcs.tbl", "Orcs", "An orc.");
        WriteTable("lib/elves.tbl", "Elves", "An elf.");
        folder.Write("lib/village.spt", "A village.\r\n");
        folder.Write("lib/endless.spt", "LABEL:a\r\nGOTO:a\r\n");
        WriteTable("lib/endless.tbl", "Endless", "#endless.spt#");
    }

    /// A table of one entry.
    void WriteTable(std::string_view name, const std::string& title, const std::string& entry) {
        folder.Write(name, title + "\xA4" + "1\r\n\r\n1\xA7" + entry + "\r\n");
    }

    template <typename Window>
    static ChildWindow* Make(Workspace& workspace) {
        return new Window(workspace);
    }
    WindowKind Recorder(const char* formName) {
        return {formName, Instances::Many, [this, formName](Workspace& workspace) {
                    editor = new RecordingWindow(workspace, formName);
                    return editor;
                }};
    }
    std::vector<WindowKind> Kinds() {
        return {{form::kLists, Instances::One, Make<frmLists>},
                {form::kSingleList, Instances::Many, Make<frmListSingle>},
                {form::kScript, Instances::Many, Make<frmScript>},
                Recorder(form::kEditTable),
                Recorder(form::kEdit)};
    }

    /// Lets what was put off until the event loop's next turn happen, closing among it.
    static void LetWindowsClose() {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    /// A file manager's drop in the middle of `target`; whether it was taken.
    static bool Drop(QWidget& target, const QList<QUrl>& urls) {
        QMimeData data;
        data.setUrls(urls);
        const QPoint place = target.rect().center();
        QDragEnterEvent enter(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        enter.ignore();
        QCoreApplication::sendEvent(&target, &enter);
        if (!enter.isAccepted()) {
            return false;
        }
        QDropEvent drop(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&target, &drop);
        EXPECT_EQ(drop.dropAction(), Qt::CopyAction) << "a move would delete the file";
        return drop.isAccepted();
    }
    QUrl UrlOf(const std::string& name) {
        return QUrl::fromLocalFile(QString::fromStdString(folder.Path(name)));
    }

    QPointer<RecordingWindow> editor;
};

}  // namespace quenloft
