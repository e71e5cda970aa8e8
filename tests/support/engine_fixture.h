// An engine over a temporary library.
#pragma once

#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include "engine/engine.h"
#include "platform/linux/linux_file_system.h"
#include "platform/linux/system_random_source.h"
#include "tests/support/fake_host.h"
#include "tests/support/temp_folder.h"

namespace quenloft {

class EngineFixture : public testing::Test {
  protected:
    EngineFixture() { files.ChangeDirectory(folder.Path()); }

    std::string Roll(std::string_view name) {
        engine.ResetGeneration();
        return engine.RollTable(folder.LibraryPath(name));
    }
    std::string Run(std::string_view name) {
        engine.ResetGeneration();
        return engine.RunScript(folder.LibraryPath(name), true);
    }
    /// A table of one entry.
    void WriteTable(std::string_view name, const std::string& entry) {
        folder.WriteTable(name, "T", entry);
    }

    TempFolder folder;
    LinuxFileSystem files;
    SystemRandomSource random;
    FakeHost host;
    Engine engine{files, random, host};
};

}  // namespace quenloft
