// The program's parts as main.cpp makes them: real engine, disk and profile; dialogs, clipboard,
// printer and trash are fakes.
#pragma once

#include <string>

#include "engine/engine.h"
#include "platform/linux/linux_file_system.h"
#include "platform/linux/linux_profile_file.h"
#include "platform/linux/system_random_source.h"
#include "shell/profile_failure.h"
#include "shell/qt_engine_host.h"
#include "shell/service_set.h"
#include "tests/support/fake_devices.h"
#include "tests/support/fake_dialogs.h"
#include "tests/support/temp_folder.h"

namespace quenloft {

struct ProgramParts {
    /// The profile is `folder`/quenloft.INI; `user` answers the dialogs.
    ProgramParts(const std::string& folder, Dialogs& user)
        : dialogsOfUser(user),
          profile(files, folder + "/quenloft", folder + "/config",
                  [this](const std::string& sentence) { profileFailure.Tell(sentence); }) {}
    ProgramParts(const ProgramParts&) = delete;
    ProgramParts& operator=(const ProgramParts&) = delete;

    ServiceSet Services() {
        return {engine, host, files, profile, dialogsOfUser, clipboard, printer, desktop};
    }

    Dialogs& dialogsOfUser;
    LinuxFileSystem files;
    ProfileFailure profileFailure{dialogsOfUser};
    LinuxProfileFile profile;
    SystemRandomSource random;
    FakeClipboard clipboard;
    FakePrinter printer;
    FakeDesktop desktop;
    QtEngineHost host{dialogsOfUser};
    Engine engine{files, random, host};
};

struct TempHome {
    TempFolder folder;
    FakeDialogs dialogs;
};

/// The parts around a folder of their own that goes with them.
struct TempProgram : TempHome, ProgramParts {
    TempProgram() : ProgramParts(folder.Path(), dialogs) {}
};

}  // namespace quenloft
