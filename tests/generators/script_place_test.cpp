#include "generators/script_place.h"

#include "tests/support/engine_fixture.h"

namespace quenloft {
namespace {

using ScriptPlaceTest = EngineFixture;

TEST_F(ScriptPlaceTest, ATypedPathIsOfEitherFormAndRelativeToTheFolder) {
    folder.Write("lib/Ford.spt", "ford");
    folder.Write("lib/sub/Inn.spt", "inn");
    const std::string lib = folder.LibraryPath("lib");
    const struct {
        std::string folder;
        std::string typed;
        std::string path;
    } cases[] = {
        {lib, "Ford.spt", folder.LibraryPath("lib/Ford.spt")},
        {lib, "sub/Inn.spt", folder.LibraryPath("lib/sub/Inn.spt")},
        {lib, "SUB\\inn.spt", folder.LibraryPath("lib/sub/Inn.spt")},
        {lib, "..\\lib\\ford.spt", folder.LibraryPath("lib/Ford.spt")},
        {lib, "./Ford.spt ", folder.LibraryPath("lib/Ford.spt")},
        {lib, folder.Path("lib/sub/Inn.spt"), folder.LibraryPath("lib/sub/Inn.spt")},
        {lib, folder.LibraryPath("lib/sub/inn.spt"), folder.LibraryPath("lib/sub/Inn.spt")},
        {lib, folder.LibraryPath("lib/sub/inn.spt").substr(2),
         folder.LibraryPath("lib/sub/Inn.spt")},
        {lib, "c:\\lib\\Ford.spt", "C:\\lib\\Ford.spt"},
        {"", "lib/Ford.spt", folder.LibraryPath("lib/Ford.spt")},
        {"", "Ford.spt", folder.LibraryPath("Ford.spt")},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(ScriptPath(files, c.folder, c.typed), c.path) << c.typed << " in " << c.folder;
    }
}

TEST_F(ScriptPlaceTest, ARunReadsTheFileAnewAndForgetsOtherRuns) {
    folder.Write("lib/a.spt", "[??gold??]\n??gold=1??\n[??gold??] #b#\n");
    WriteTable("lib/b.tbl", "beside");
    const std::string lib = folder.LibraryPath("lib");
    const std::string first = RunScriptAt(engine, lib, "a.spt");
    EXPECT_TRUE(first.ends_with("\r\n[1] beside")) << first;
    EXPECT_EQ(RunScriptAt(engine, lib, "a.spt"), first);
    folder.Write("lib/a.spt", "new form\n");
    EXPECT_EQ(RunScriptAt(engine, lib, "a.spt"), "new form");
}

TEST_F(ScriptPlaceTest, AFailedRunNamesFileAndLine) {
    folder.Write("lib/bad.spt", "fine\nIF 1+(2\nEND IF\n");
    const std::string text = RunScriptAt(engine, folder.LibraryPath("lib"), "bad.spt");
    EXPECT_EQ(text, "fine\r\n\r\nErrors in script \r\n" + folder.LibraryPath("lib/bad.spt") +
                        "\r\nLine :2\r\nError description :Missing ) in '1+(2'\r\n"
                        "Current Directory :" +
                        folder.LibraryPath("lib"));
}

}  // namespace
}  // namespace quenloft
