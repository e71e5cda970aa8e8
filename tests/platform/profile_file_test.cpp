// The rules of the settings file, on whole file texts; where it lies and what happens to it on
// disk.
#include "platform/profile_file.h"

#include <gtest/gtest.h>

#include "platform/linux/linux_file_system.h"
#include "platform/linux/linux_profile_file.h"
#include "platform/linux/profile_text.h"
#include "tests/support/temp_folder.h"

namespace quenloft {
namespace {

using namespace std::string_literals;

TEST(ProfileTextTest, FindsTheValueOfAKey) {
    const struct {
        const char* what;
        std::string file;
        const char* value;  ///< Of "key" in "sec"; "(none)" where it is missing.
    } cases[] = {
        {"empty file", "", "(none)"},
        {"either line end", "[sec]\r\na=1\nkey=v\r\n", "v"},
        {"byte order mark", "\xEF\xBB\xBF[sec]\nkey=v\n", "v"},
        {"case and blanks ignored", " [ SEC ] \n \t Key \t = \t v v \t \n", "v v"},
        {"first section only", "[sec]\na=1\n[sec]\nkey=v\n", "(none)"},
        {"first key wins", "[sec]\nkey=1\nKEY=2\n", "1"},
        {"key of another section", "key=0\n[other]\nkey=1\n[sec]\n[third]\nkey=2\n", "(none)"},
        {"empty value is a value", "[sec]\nkey=\n", ""},
        {"line without equals is no key", "[sec]\nkey\nkey=v\n", "v"},
        {"comments", "[sec]\n;key=1\n  ; key=2\n;[sec]\nkey=v\n", "v"},
        {"semicolon inside belongs", "[sec]\nkey=a ; b\n", "a ; b"},
        {"quotes keep blanks", "[sec]\nkey= \" v \" \n", " v "},
        {"single quotes", "[sec]\nkey='v'\n", "v"},
        {"one pair only", "[sec]\nkey=\"\"v\"\"\n", "\"v\""},
        {"unequal quotes stay", "[sec]\nkey=\"v'\n", "\"v'"},
        {"lone quote stays", "[sec]\nkey=\"\n", "\""},
        {"head ends at the last bracket", "[sec] [x]\nkey=1\n[sec] text\nkey=v\n", "v"},
        {"head without bracket is none", "[sec]\n[open\nkey=v\n", "v"},
        {"ends at nul", "[sec]\nkey=a\0b\n"s, "a"},
        {"each line in its encoding", "[sec]\n\xA7=1\nkey=\xC2\xA7\n", "\xC2\xA7"},
        {"line decoded as a whole", "[sec]\nkey=\xA7 \xC2\xA7\n", "\xC2\xA7 \xC3\x82\xC2\xA7"},
    };
    for (const auto& [what, file, value] : cases) {
        EXPECT_EQ(FindProfileValue(file, " Sec\t", "\tKEY ").value_or("(none)"), value) << what;
    }
}

TEST(ProfileTextTest, FindsNamesWithAccentsInAnyCase) {
    EXPECT_EQ(FindProfileValue("[\xC4]\n\xE9=v\n", "\xC3\xA4", "\xC3\x89"), "v");
}

TEST(ProfileTextTest, EmptyNamesFindNothing) {
    EXPECT_EQ(FindProfileValue("key=0\n[]\nkey=1\n[sec]\n=2\n", "", "key"), std::nullopt);
    EXPECT_EQ(FindProfileValue("[sec]\n=2\n", "sec", " "), std::nullopt);
}

TEST(ProfileTextTest, ListsKeysInOrderAndSpelling) {
    EXPECT_EQ(
        ListProfileKeys("[sec]\nB = 2\r\n;c=1\nno key\n a=1\nb=3\n\xC4=\n[sec]\nz=1\n", "SEC"),
        "B\0a\0b\0\xC3\x84\0"s);
    EXPECT_EQ(ListProfileKeys("[other]\na=1\n", "sec"), "");
}

TEST(ProfileTextTest, ChangesNothingButTheValue) {
    const struct {
        const char* what;
        std::string before;
        std::string value;
        const char* after;  ///< "key" of "sec" has the value; "(refused)" where nothing is written.
    } cases[] = {
        {"new file", "", "v", "[sec]\r\nkey=v\r\n"},
        {"new section at the end", "[a]\r\nx=1\r\n", "v", "[a]\r\nx=1\r\n[sec]\r\nkey=v\r\n"},
        {"missing line end added", "[a]\nx=1", "v", "[a]\nx=1\r\n[sec]\r\nkey=v\r\n"},
        {"byte order mark stays in front", "\xEF\xBB\xBF", "v", "\xEF\xBB\xBF[sec]\r\nkey=v\r\n"},
        {"replaced in place", "; top\n[SEC]\na=1\n  KEY = \"old\" \nb\n\n[c]\nkey=1", "v",
         "; top\n[SEC]\na=1\n  KEY = v\nb\n\n[c]\nkey=1"},
        {"only the first key", "[sec]\r\nkey=1\r\nkey=2\r\n", "v", "[sec]\r\nkey=v\r\nkey=2\r\n"},
        {"only the first section", "[sec]\r\n[sec]\r\nkey=2\r\n", "v",
         "[sec]\r\nkey=v\r\n[sec]\r\nkey=2\r\n"},
        {"new key before the blank lines", "[sec]\na=1\n;note\n\n \t\n[b]\n", "v",
         "[sec]\na=1\n;note\nkey=v\r\n\n \t\n[b]\n"},
        {"new key in an empty section", "[sec]", "v", "[sec]\r\nkey=v\r\n"},
        {"empty value", "[sec]\nkey=old\n", "", "[sec]\nkey=\n"},
        {"code page for a new file", "", "\xC2\xA7", "[sec]\r\nkey=\xA7\r\n"},
        {"utf8 file stays utf8", "[a]\nx=\xC2\xA7\n", "\xC2\xA7",
         "[a]\nx=\xC2\xA7\n[sec]\r\nkey=\xC2\xA7\r\n"},
        {"beyond the code page", "[a]\nx=\xA7\n", "\xC4\x80",
         "[a]\nx=\xA7\n[sec]\r\nkey=\xC4\x80\r\n"},
        {"code page text that looks like utf8", "", "\xC3\x82\xC2\xA7",
         "[sec]\r\nkey=\xC3\x82\xC2\xA7\r\n"},
        {"line keeps its encoding", "[a]\n\xA7\n[sec]\nkey=\xC2\xA7\n", "\xC2\xB0",
         "[a]\n\xA7\n[sec]\nkey=\xC2\xB0\n"},
        {"line end in a value", "[sec]\nkey=old\n", "v\r\n[x]", "(refused)"},
        {"nul in a value", "", "v\0w"s, "(refused)"},
    };
    for (const auto& [what, before, value, after] : cases) {
        EXPECT_EQ(ReplaceProfileValue(before, " sec", "key ", value).value_or("(refused)"), after)
            << what;
    }
}

TEST(ProfileTextTest, RefusesNamesThatCouldNotBeFoundAgain) {
    EXPECT_EQ(ReplaceProfileValue("", " ", "key", "v"), std::nullopt);
    EXPECT_EQ(ReplaceProfileValue("", "sec", "\t", "v"), std::nullopt);
    EXPECT_EQ(ReplaceProfileValue("", "sec", "a=b", "v"), std::nullopt);
    EXPECT_EQ(ReplaceProfileValue("", "se\nc", "key", "v"), std::nullopt);
}

TEST(ProfileTextTest, ReplacesInALineOfTheCodePage) {
    EXPECT_EQ(ReplaceProfileValue("[sec]\n\xE9 = a\n", "sec", "\xC3\x89", "\xC2\xA7"),
              "[sec]\n\xE9 = \xA7\n");
    EXPECT_EQ(ReplaceProfileValue("[sec]\n\xE9=a\n", "sec", "\xC3\x89", "\xC4\x80"),
              "[sec]\n\xC3\xA9=\xC4\x80\n");
}

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
