// Where the settings lie and what happens to them on disk.
#include "platform/profile_file.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "platform/linux/linux_file_system.h"
#include "platform/linux/linux_profile_file.h"
#include "tests/support/temp_folder.h"

namespace quenloft {
namespace {

class ProfileFileTest : public testing::Test {
  protected:
    ProfileFileTest() { folder_.Write("bin/Quenloft.exe", ""); }

    TempFolder folder_;
    LinuxFileSystem files_;
    LinuxProfileFile profile_{files_, folder_.Path("bin/Quenloft.exe"), folder_.Path("config/q")};
};

TEST_F(ProfileFileTest, LiesBesideTheExecutable) {
    EXPECT_EQ(profile_.GetApplicationBaseName(), folder_.LibraryPath("bin/Quenloft"));
    EXPECT_EQ(profile_.GetProfileFileName(), folder_.LibraryPath("bin/Quenloft.INI"));

    EXPECT_TRUE(profile_.WriteProfileString("Settings", "Libpath", "Z:\\lib",
                                            profile_.GetProfileFileName()));
    EXPECT_EQ(folder_.Read("bin/Quenloft.INI"), "[Settings]\r\nLibpath=Z:\\lib\r\n");
    EXPECT_FALSE(std::filesystem::exists(folder_.Path("config")));
}

TEST_F(ProfileFileTest, LiesInTheConfigurationFolderWhereTheProgramsOwnCannotBeWritten) {
    LinuxProfileFile profile(files_, "/no-such-folder/quenloft", folder_.Path("config/q"));
    EXPECT_EQ(profile.GetApplicationBaseName(), "Z:\\no-such-folder\\quenloft");
    EXPECT_EQ(profile.GetProfileFileName(), folder_.LibraryPath("config/q/quenloft.INI"));

    EXPECT_EQ(profile.ReadProfileString("Font", "FontSize", "8 ", profile.GetProfileFileName()),
              "8");
    EXPECT_TRUE(profile.WriteProfileString("Font", "FontSize", "10", profile.GetProfileFileName()));
    EXPECT_EQ(folder_.Read("config/q/quenloft.INI"), "[Font]\r\nFontSize=10\r\n");
    EXPECT_EQ(profile.ReadProfileString("font", "fontsize", "8", profile.GetProfileFileName()),
              "10");
}

TEST_F(ProfileFileTest, SeesAnEditByHandAtOnce) {
    EXPECT_EQ(profile_.ReadProfileString("s", "k", "none", folder_.Path("x.ini")), "none");
    folder_.Write("X.ini", "[s]\nk=1\n");
    EXPECT_EQ(profile_.ReadProfileString("s", "k", "none", folder_.Path("x.ini")), "1");
    EXPECT_TRUE(profile_.WriteProfileString("s", "k", "2", folder_.Path("x.ini")));
    EXPECT_EQ(folder_.Read("X.ini"), "[s]\nk=2\n");
}

TEST_F(ProfileFileTest, CutsLongValuesBetweenCharacters) {
    const std::string file =
        folder_.Write("x.ini", "[s]\nk=" + std::string(248, 'a') + "\xC2\xA7\xC2\xA7\n");
    const std::string cut = std::string(248, 'a') + "\xC2\xA7";
    EXPECT_EQ(profile_.ReadProfileString("s", "k", "", file), cut);
    EXPECT_EQ(profile_.ReadProfileString("s", "no", cut + "z", file), cut);
}

TEST_F(ProfileFileTest, CutsAKeyListThatDoesNotFit) {
    const auto keysOf = [&](std::size_t nameLength) {
        const std::string name(nameLength, 'k');
        return profile_.ReadProfileKeyList(folder_.Write("x.ini", "[s]\n" + name + "=1\n"), "s");
    };
    EXPECT_EQ(keysOf(1021), std::string(1021, 'k') + '\0');
    EXPECT_EQ(keysOf(1022), std::string(1022, 'k'));  // Would just fit.
    EXPECT_EQ(keysOf(3000), std::string(1022, 'k'));
}

TEST_F(ProfileFileTest, LeavesAloneWhatItCannotReadOrNeedNotChange) {
    EXPECT_FALSE(profile_.WriteProfileString("s", "k", "v", folder_.Path("none/x.ini")));
    EXPECT_FALSE(profile_.WriteProfileString("s", "k", "v", folder_.Path("bin")));
    EXPECT_FALSE(profile_.WriteProfileString("", "k", "v", folder_.Path("x.ini")));
    EXPECT_FALSE(std::filesystem::exists(folder_.Path("x.ini")));

    const std::string file = folder_.Write("same.ini", "[s]\nk=v\n");
    const auto before = std::filesystem::last_write_time(file);
    EXPECT_TRUE(profile_.WriteProfileString("S", "K", "v", file));
    EXPECT_EQ(std::filesystem::last_write_time(file), before);
}

}  // namespace
}  // namespace quenloft
