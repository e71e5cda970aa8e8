// The program with the windows that roll tables and run scripts, and editors that record.
#pragma once

#include "generators/list_single_window.h"
#include "generators/lists_window.h"
#include "generators/script_window.h"
#include "tests/support/recording_window.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {

class GeneratorsFixture : public WindowsFixture {
  protected:
    GeneratorsFixture() {
        folder.WriteTable("lib/orcs.tbl", "Orcs", "An orc.");
        folder.WriteTable("lib/elves.tbl", "Elves", "An elf.");
        folder.Write("lib/village.spt", "A village.\r\n");
        folder.Write("lib/endless.spt", "LABEL:a\r\nGOTO:a\r\n");
        folder.WriteTable("lib/endless.tbl", "Endless", "#endless.spt#");
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

    QPointer<RecordingWindow> editor;
};

}  // namespace quenloft
