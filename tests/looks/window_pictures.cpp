// Takes a picture of each window of the program, to be looked at after a change of how it looks:
//
//   window_pictures FOLDER [light|dark] [POINTS]
//
// writes FOLDER/frmExplorer.png and so on, with the sample library, in a light or dark palette and
// a font of POINTS. QT_SCALE_FACTOR=1.5 in the environment scales everything. Needs no screen.
#include <QApplication>
#include <QDir>
#include <QFontInfo>
#include <QPushButton>
#include <QStyleFactory>
#include <QTest>
#include <cstdio>
#include <map>
#include <string_view>

#include "platform/qt/qt_text.h"
#include "shell/child_window.h"
#include "shell/form_names.h"
#include "shell/main_window.h"
#include "shell/program_icon.h"
#include "shell/recovery/recovery.h"
#include "shell/settings_dialog.h"
#include "shell/window_kinds.h"
#include "tests/support/temp_program.h"

namespace quenloft {
namespace {

QPalette DarkPalette() {
    QPalette palette(QColor(45, 45, 48));  // The other colours follow from it, all but these.
    palette.setColor(QPalette::PlaceholderText, QColor(140, 140, 140));
    palette.setColor(QPalette::Highlight, QColor(38, 100, 170));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(110, 170, 255));
    return palette;
}

/// What each window shows in its picture; the others stay as they open.
const std::map<std::string_view, const char*> kFiles = {
    {form::kSingleList, "/Tonight.tbl"},
    {form::kEditTable, "/Tonight.tbl"},
    {form::kScript, "/Scripts/Village.spt"},
    {form::kEdit, "/Scripts/Village.spt"},
};

/// What a program that was killed left for the recovery window. Returns the state folder.
std::string LeaveTexts(const TempFolder& folder) {
    const std::string script = QUENLOFT_LIBRARY "/Scripts/Hoard.spt";
    constexpr std::int64_t kTime = 1800000000;
    folder.Write("state/unsaved/old/lock", "");
    folder.Write("state/unsaved/old/1.text",
                 BytesOfKept({form::kEdit, script, "", kTime, "A first line\nand another one\n"}));
    folder.Write("state/unsaved/old/2.text",
                 BytesOfKept({form::kEditTable, "", "", kTime - 1, "Innkeepers\n\n1\nAda\n"}));
    return folder.Path("state");
}

void TakePictures(const QDir& folder) {
    const std::string library = QUENLOFT_LIBRARY;
    TempProgram program;
    program.folder.Write("quenloft.INI", "[Settings]\r\nLibpath=" + library + "\r\n");
    Recovery recovery(LeaveTexts(program.folder), program.dialogs);
    const std::vector<WindowKind> kinds = MakeWindowKinds(program.random, &recovery);
    const ServiceSet services = program.Services();
    frmMain window(services, kinds);
    window.StartUp();
    window.showNormal();
    window.resize(1280, 800);
    const auto save = [&](QWidget& widget, const QString& name) {
        QTest::qWait(200);
        widget.grab().save(folder.filePath(name + QLatin1String(".png")));
    };
    for (const WindowKind& kind : kinds) {
        window.CloseAll();
        ChildWindow* child = window.Open(kind.formName);
        if (const auto file = kFiles.find(kind.formName); file != kFiles.end()) {
            child->Load(library + file->second);
        }
        if (kind.formName == std::string_view(form::kSingleList) ||
            kind.formName == std::string_view(form::kScript)) {
            child->Run();
        }
        if (auto* compare = child->findChild<QPushButton*>("btnCompare")) {
            compare->click();
        }
        save(window, QLatin1String(kind.formName));
    }
    FontSettings fonts;
    frmSettings settings(services, fonts, &window);
    settings.show();
    save(settings, QStringLiteral("frmSettings"));
}

}  // namespace
}  // namespace quenloft

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    if (argc < 2) {
        std::fputs("usage: window_pictures FOLDER [light|dark] [POINTS]\n", stderr);
        return 2;
    }
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("fusion")));
    QApplication::setWindowIcon(quenloft::ProgramIcon());
    if (argc > 2 && std::string_view(argv[2]) == "dark") {
        QApplication::setPalette(quenloft::DarkPalette());
    }
    if (argc > 3) {
        QFont font = QApplication::font();
        font.setPointSizeF(QString::fromLatin1(argv[3]).toDouble());
        QApplication::setFont(font);
    }
    // The program changes the current directory.
    const QDir folder(QDir().absoluteFilePath(QString::fromLocal8Bit(argv[1])));
    folder.mkpath(QStringLiteral("."));
    quenloft::TakePictures(folder);
    return 0;
}
