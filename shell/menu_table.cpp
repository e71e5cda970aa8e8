#include "shell/menu_table.h"

#include "shell/child_window.h"
#include "shell/form_names.h"
#include "shell/main_window.h"

namespace quenloft {
namespace {

constexpr MenuEntry Menu(int depth, const char* name, const char* caption) {
    return {.depth = depth, .name = name, .caption = caption, .isMenu = true};
}

constexpr MenuEntry Window(int depth, const char* name, const char* caption, const char* shortcut,
                           const char* form, void (ChildWindow::*afterwards)() = nullptr) {
    return {.depth = depth,
            .name = name,
            .caption = caption,
            .shortcut = shortcut,
            .form = form,
            .afterwards = afterwards};
}

constexpr MenuEntry Command(int depth, const char* name, const char* caption, const char* shortcut,
                            void (frmMain::*command)()) {
    return {
        .depth = depth, .name = name, .caption = caption, .shortcut = shortcut, .command = command};
}

constexpr MenuEntry Separator(int depth, const char* name) {
    return {.depth = depth, .name = name, .caption = ""};
}

// Shortcuts are written out: the standard ones are empty on some desktops. None is given twice, and
// Ctrl+W and Ctrl+F4 are left to the child windows' own Close: a key given twice does nothing.
// clang-format off
constexpr MenuEntry kMenus[] = {
    Menu(0, "mnuFile", "&File"),
      Menu(1, "mnuTable", "&Table"),
        Window(2, "mnuFile_OpenTable", "&Open Table...", "Ctrl+O", form::kSingleList, &ChildWindow::OpenFile),
        Window(2, "mnuNewTable", "&New Table", "Ctrl+N", form::kEditTable, &ChildWindow::NewFile),
        Window(2, "mnuViewEditTable", "&Edit Table...", "", form::kEditTable, &ChildWindow::OpenFile),
        Window(2, "mnuViewImportTable", "&Import into table", "", form::kImportTable),
      Menu(1, "mnuView_Scripts", "&Scripts"),
        Window(2, "mnuFile_OpenScript", "&Open Script...", "Ctrl+Shift+O", form::kScript, &ChildWindow::OpenFile),
        Window(2, "mnuFile_NewScript", "&New Script", "Ctrl+Shift+N", form::kEdit, &ChildWindow::NewFile),
        Window(2, "mnuView_Edit", "Edit Scrip&t...", "", form::kEdit, &ChildWindow::OpenFile),
      Menu(1, "mnuFile_Recent", "Open &Recent"),
      Window(1, "mnuFile_Recovery", "&Unsaved Texts", "", form::kRecovery),
      Command(1, "mnuFileSettings", "&Settings", "Ctrl+,", &frmMain::ShowSettings),
      Command(1, "mnuFile_Print", "&Print", "Ctrl+P", &frmMain::Print),
      Command(1, "mnuFile_Export", "&Export", "Ctrl+E", &frmMain::Export),
      Separator(1, "mnuFile_Separator"),
      Command(1, "mnuFile_Exit", "E&xit", "Ctrl+Q", &frmMain::Exit),
    Menu(0, "mnuEdit", "&Edit"),
      Command(1, "mnuEdit_Cut", "&Cut", "Ctrl+X", &frmMain::Cut),
      Command(1, "mnuEdit_Copy", "&Copy", "Ctrl+C", &frmMain::Copy),
      Command(1, "mnuEdit_Paste", "&Paste", "Ctrl+V", &frmMain::Paste),
    Menu(0, "mnuView", "&View"),
      Window(1, "mnuView_Explorer", "E&xplorer", "Ctrl+L", form::kExplorer),
      Window(1, "mnuView_ListPage", "&Listpage", "", form::kLists),
      Window(1, "mnuView_Dice", "&Dice", "Ctrl+D", form::kDice),
      Menu(1, "mnuView_Probability", "Dice &Probability Analysis"),
        Window(2, "mnuView_Probability_Kelbrunsystem", "&Kelbrunsystem", "", form::kProbability),
        Window(2, "mnuView_Probability_Drovemark", "&Drovemark", "", form::kDrovemark),
        Window(2, "mnuView_Probability_Shadowrun", "&Shadowrun", "", form::kShadowrunProbability),
      Window(1, "mnuView_Toolbox", "&Insert Toolbox", "", form::kEditReference),
      Window(1, "mnuView_Author", "&Author Area", "", form::kAuthor),
    Menu(0, "mnuWindow", "&Window"),
      Command(1, "mnuWindow_CloseAll", "Close &All", "Ctrl+Shift+W", &frmMain::CloseAll),
      Command(1, "mnuWindow_Cascade", "&Cascade", "", &frmMain::Cascade),
      Command(1, "mnuWindow_Vertically", "Tile &Vertically", "", &frmMain::TileVertically),
      Command(1, "mnuWindow_TileH", "Tile &Horizontally", "", &frmMain::TileHorizontally),
      Command(1, "mnuWindow_Arrange", "&Arrange", "", &frmMain::ArrangeAll),
    Menu(0, "mnuHelp", "&Help"),
      Window(1, "mnuHelp_Readme", "&Readme", "F1", form::kReadme),
      Window(1, "mnuHelp_About", "&About", "", form::kAbout),
    Command(0, "mnuAbort", "&Abort Running Processes!", "Esc", &frmMain::AbortRun),
};
// clang-format on

}  // namespace

std::span<const MenuEntry> MenuTable() { return kMenus; }

}  // namespace quenloft
