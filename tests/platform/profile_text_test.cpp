// The rules of the settings file, on whole file texts.
#include "platform/linux/profile_text.h"

#include <gtest/gtest.h>
#include <string>

namespace quenloft {
namespace {

using namespace std::string_literals;

struct ReadCase {
    const char* name;
    std::string file;
    std::string value;  ///< Of "key" in "sec"; "(none)" where it is missing.
};

void PrintTo(const ReadCase& readCase, std::ostream* out) { *out << readCase.name; }

class ProfileReadTest : public testing::TestWithParam<ReadCase> {};

TEST_P(ProfileReadTest, FindsTheValue) {
    EXPECT_EQ(FindProfileValue(GetParam().file, " Sec\t", "\tKEY ").value_or("(none)"),
              GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Files, ProfileReadTest,
    testing::Values(
        ReadCase{"empty_file", "", "(none)"},  //
        ReadCase{"either_line_end", "[sec]\r\na=1\nkey=v\r\n", "v"},
        ReadCase{"no_line_end", "[sec]\nkey=v", "v"},
        ReadCase{"byte_order_mark", "\xEF\xBB\xBF[sec]\nkey=v\n", "v"},
        ReadCase{"case_and_blanks_ignored", " [ SEC ] \n \t Key \t = \t v v \t \n", "v v"},
        ReadCase{"first_section_only", "[sec]\na=1\n[sec]\nkey=v\n", "(none)"},
        ReadCase{"first_key_wins", "[sec]\nkey=1\nKEY=2\n", "1"},
        ReadCase{"key_of_another_section", "key=0\n[other]\nkey=1\n[sec]\n[third]\nkey=2\n",
                 "(none)"},
        ReadCase{"empty_value_is_a_value", "[sec]\nkey=\n", ""},
        ReadCase{"line_without_equals_is_no_key", "[sec]\nkey\nkey=v\n", "v"},
        ReadCase{"comments", "[sec]\n;key=1\n  ; key=2\n;[sec]\nkey=v\n", "v"},
        ReadCase{"hash_is_no_comment", "[sec]\n#key=1\n", "(none)"},
        ReadCase{"semicolon_inside_belongs", "[sec]\nkey=a ; b\n", "a ; b"},
        ReadCase{"second_equals_belongs", "[sec]\nkey=a=b\n", "a=b"},
        ReadCase{"quotes_keep_blanks", "[sec]\nkey= \" v \" \n", " v "},
        ReadCase{"single_quotes", "[sec]\nkey='v'\n", "v"},
        ReadCase{"one_pair_only", "[sec]\nkey=\"\"v\"\"\n", "\"v\""},
        ReadCase{"unequal_quotes_stay", "[sec]\nkey=\"v'\n", "\"v'"},
        ReadCase{"lone_quote_stays", "[sec]\nkey=\"\n", "\""},
        ReadCase{"head_ends_at_the_last_bracket", "[sec] [x]\nkey=1\n[sec] text\nkey=v\n", "v"},
        ReadCase{"head_without_bracket_is_none", "[sec]\n[open\nkey=v\n", "v"},
        ReadCase{"ends_at_nul", "[sec]\nkey=a\0b\n"s, "a"},
        ReadCase{"each_line_in_its_encoding", "[sec]\n\xA7=1\nkey=\xC2\xA7\n", "\xC2\xA7"},
        ReadCase{"code_page_line", "[sec]\nkey=\xA7\x80\n", "\xC2\xA7\xE2\x82\xAC"},
        ReadCase{"line_decoded_as_a_whole", "[sec]\nkey=\xA7 \xC2\xA7\n",
                 "\xC2\xA7 \xC3\x82\xC2\xA7"}),
    [](const testing::TestParamInfo<ReadCase>& info) { return info.param.name; });

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

struct WriteCase {
    const char* name;
    std::string before;
    std::string value;
    std::string after;  ///< "key" of "sec" has the value; "(refused)" where nothing is written.
};

void PrintTo(const WriteCase& writeCase, std::ostream* out) { *out << writeCase.name; }

class ProfileWriteTest : public testing::TestWithParam<WriteCase> {};

TEST_P(ProfileWriteTest, ChangesNothingElse) {
    EXPECT_EQ(ReplaceProfileValue(GetParam().before, " sec", "key ", GetParam().value)
                  .value_or("(refused)"),
              GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(
    Files, ProfileWriteTest,
    testing::Values(
        WriteCase{"new_file", "", "v", "[sec]\r\nkey=v\r\n"},
        WriteCase{"new_section_at_the_end", "[a]\r\nx=1\r\n", "v",
                  "[a]\r\nx=1\r\n[sec]\r\nkey=v\r\n"},
        WriteCase{"missing_line_end_added", "[a]\nx=1", "v", "[a]\nx=1\r\n[sec]\r\nkey=v\r\n"},
        WriteCase{"byte_order_mark_stays_in_front", "\xEF\xBB\xBF", "v",
                  "\xEF\xBB\xBF[sec]\r\nkey=v\r\n"},
        WriteCase{"replaced_in_place", "; top\n[SEC]\na=1\n  KEY = \"old\" \nb\n\n[c]\nkey=1", "v",
                  "; top\n[SEC]\na=1\n  KEY = v\nb\n\n[c]\nkey=1"},
        WriteCase{"replaced_in_the_last_line", "[sec]\nkey=old", "v", "[sec]\nkey=v"},
        WriteCase{"only_the_first_key", "[sec]\r\nkey=1\r\nkey=2\r\n", "v",
                  "[sec]\r\nkey=v\r\nkey=2\r\n"},
        WriteCase{"only_the_first_section", "[sec]\r\n[sec]\r\nkey=2\r\n", "v",
                  "[sec]\r\nkey=v\r\n[sec]\r\nkey=2\r\n"},
        WriteCase{"new_key_before_the_blank_lines", "[sec]\na=1\n;note\n\n \t\n[b]\n", "v",
                  "[sec]\na=1\n;note\nkey=v\r\n\n \t\n[b]\n"},
        WriteCase{"new_key_in_an_empty_section", "[sec]", "v", "[sec]\r\nkey=v\r\n"},
        WriteCase{"quotes_as_given", "", "\" v \"", "[sec]\r\nkey=\" v \"\r\n"},
        WriteCase{"empty_value", "[sec]\nkey=old\n", "", "[sec]\nkey=\n"},
        WriteCase{"code_page_for_a_new_file", "", "\xC2\xA7", "[sec]\r\nkey=\xA7\r\n"},
        WriteCase{"utf8_file_stays_utf8", "[a]\nx=\xC2\xA7\n", "\xC2\xA7",
                  "[a]\nx=\xC2\xA7\n[sec]\r\nkey=\xC2\xA7\r\n"},
        WriteCase{"beyond_the_code_page", "[a]\nx=\xA7\n", "\xC4\x80",
                  "[a]\nx=\xA7\n[sec]\r\nkey=\xC4\x80\r\n"},
        WriteCase{"code_page_text_that_looks_like_utf8", "", "\xC3\x82\xC2\xA7",
                  "[sec]\r\nkey=\xC3\x82\xC2\xA7\r\n"},
        WriteCase{"line_keeps_its_encoding", "[a]\n\xA7\n[sec]\nkey=\xC2\xA7\n", "\xC2\xB0",
                  "[a]\n\xA7\n[sec]\nkey=\xC2\xB0\n"},
        WriteCase{"line_end_in_a_value", "[sec]\nkey=old\n", "v\r\n[x]", "(refused)"},
        WriteCase{"nul_in_a_value", "", "v\0w"s, "(refused)"}),
    [](const testing::TestParamInfo<WriteCase>& info) { return info.param.name; });

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

TEST(ProfileTextTest, CutsBetweenCharacters) {
    EXPECT_EQ(FirstCharacters("a\xC2\xA7\xF0\x9F\x8E\xB2z", 3), "a\xC2\xA7\xF0\x9F\x8E\xB2");
    EXPECT_EQ(FirstCharacters("ab", 5), "ab");
}

}  // namespace
}  // namespace quenloft
