// Lines of text files, read whole and block by block: both ways must give the same.
#include "platform/linux/text_lines.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "platform/linux/disk_line_reader.h"
#include "platform/linux/text_cache.h"
#include "tests/support/temp_folder.h"

namespace quenloft {
namespace {

using namespace std::string_literals;
using Lines = std::vector<std::string>;

struct TextCase {
    const char* name;
    std::string bytes;
    Lines lines;
};

void PrintTo(const TextCase& textCase, std::ostream* out) { *out << textCase.name; }

class TextLinesTest : public testing::TestWithParam<TextCase> {};

Lines AllLines(const TextFile& file) {
    Lines lines;
    for (std::size_t i = 0; i < file.LineCount(); ++i) {
        lines.emplace_back(file.Line(i));
    }
    return lines;
}

Lines AllLines(LineReader&& reader) {
    Lines lines;
    for (std::string line; reader.ReadLine(line);) {
        lines.push_back(line);
    }
    return lines;
}

TEST_P(TextLinesTest, AreTheSameWhicheverWayTheyAreRead) {
    const TempFolder folder;
    EXPECT_EQ(AllLines(LoadedTextFile(GetParam().bytes, "")), GetParam().lines);
    EXPECT_EQ(AllLines(DiskLineReader(folder.Write("x.tbl", GetParam().bytes))), GetParam().lines);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, TextLinesTest,
    testing::Values(TextCase{"empty_file", "", {}},  //
                    TextCase{"one_end_is_one_empty_line", "\n", {""}},
                    TextCase{"all_three_line_ends", "a\r\nb\nc\rd", {"a", "b", "c", "d"}},
                    TextCase{"ends_in_a_row", "\r\r\n\n\r", {"", "", "", ""}},
                    TextCase{"end_at_the_end_starts_no_line", "a\r\nb\r\n", {"a", "b"}},
                    TextCase{"byte_order_mark",
                             "\xEF\xBB\xBF"
                             "a\n",
                             {"a"}},
                    TextCase{"byte_order_mark_alone", "\xEF\xBB\xBF", {}},
                    TextCase{"half_a_byte_order_mark", "\xEF\xBB", {"\xC3\xAF\xC2\xBB"}},
                    TextCase{"nul_characters", "a\0b\n\0"s, {"a\0b"s, "\0"s}},
                    TextCase{"each_line_in_its_own_encoding",
                             "5\xA7Text\n5\xC2\xA7Text\n\x80\x81",
                             {"5\xC2\xA7Text", "5\xC2\xA7Text", "\xE2\x82\xAC\xC2\x81"}},
                    TextCase{"line_longer_than_a_block",
                             std::string(10'000, 'x') + "\ny",
                             {std::string(10'000, 'x'), "y"}},
                    TextCase{"line_end_across_the_border_of_blocks",
                             std::string(4095, 'x') + "\r\ny",
                             {std::string(4095, 'x'), "y"}},
                    TextCase{"lone_return_at_the_end_of_a_block",
                             std::string(4095, 'x') + "\r",
                             {std::string(4095, 'x')}},
                    TextCase{"letter_across_the_border_of_blocks",
                             std::string(4095, 'x') + "\xC2\xA7\n",
                             {std::string(4095, 'x') + "\xC2\xA7"}}),
    [](const testing::TestParamInfo<TextCase>& info) { return info.param.name; });

TEST(TextCacheTest, DropsTheLongestUnusedAndNeverWhatIsInUse) {
    const TempFolder folder;
    TextCache cache(10'000);
    const auto open = [&](const std::string& name) {
        const std::string path = folder.Path(name);
        return cache.Open(cache.SlotOf(path), StampOf(path), 1);
    };
    const auto isKept = [&](const std::string& name) {
        return cache.SlotOf(folder.Path(name)).lines != nullptr;
    };
    for (const char* name : {"held", "old", "used", "new"}) {
        folder.Write(name, std::string(3'000, 'x'));
    }

    const auto held = open("held");
    open("old");
    open("used");
    open("old");
    open("used");
    open("new");

    EXPECT_TRUE(isKept("held"));
    EXPECT_FALSE(isKept("old"));
    EXPECT_TRUE(isKept("new"));
    EXPECT_EQ(open("held"), held);
    EXPECT_EQ(open("old")->Line(0), std::string(3'000, 'x'));
}

}  // namespace
}  // namespace quenloft
