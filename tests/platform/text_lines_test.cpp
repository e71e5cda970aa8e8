// From bytes to text: encodings, lines read whole and block by block, and what is kept of them.
#include "platform/linux/text_lines.h"

#include <gtest/gtest.h>
#include <vector>

#include "platform/linux/disk_line_reader.h"
#include "platform/linux/text_cache.h"
#include "platform/text_encoding.h"
#include "tests/support/temp_folder.h"

namespace quenloft {
namespace {

TEST(TextEncodingTest, EveryByteOfTheCodePageComesBack) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) {
        all += static_cast<char>(byte);
    }
    const std::string text = FromWindows1252(all);
    EXPECT_TRUE(IsUtf8(text));
    EXPECT_EQ(ToWindows1252(text), all);
    EXPECT_EQ(FromWindows1252("\x80\x81\x99\x9F\xA4\xA7\xFF"),
              "\xE2\x82\xAC\xC2\x81\xE2\x84\xA2\xC5\xB8\xC2\xA4\xC2\xA7\xC3\xBF");
}

TEST(TextEncodingTest, WhatTheCodePageCannotHoldIsNeverReplaced) {
    for (const char* text :
         {"\xC4\x80", "a\xE2\x80\xA8z", "\xF0\x9F\x8E\xB2", "\xC2\x80", "\xFF"}) {
        EXPECT_EQ(ToWindows1252(text), std::nullopt) << text;
    }
}

TEST(TextEncodingTest, KnowsWellFormedText) {
    for (const char* good : {"", "plain", "\xC2\xA7", "\xEF\xBF\xBF", "\xF4\x8F\xBF\xBF"}) {
        EXPECT_TRUE(IsUtf8(good)) << good;
        EXPECT_EQ(DecodeText(good), good);
    }
    for (const char* bad : {"\xA7", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80",
                            "\xC2", "\xE2\x82", "\xC2\xA7\xA7"}) {
        EXPECT_FALSE(IsUtf8(bad)) << bad;
        EXPECT_EQ(DecodeText(bad), FromWindows1252(bad));
    }
}

TEST(TextEncodingTest, AFileIsUtf8OnlyWhereItShowsIt) {
    EXPECT_EQ(DetectEncoding("plain"), TextEncoding::Windows1252);
    EXPECT_EQ(DetectEncoding("\xA7"), TextEncoding::Windows1252);
    EXPECT_EQ(DetectEncoding("\xC2\xA7"), TextEncoding::Utf8);
    EXPECT_EQ(DetectEncoding("\xC2\xA7\n\xA7"), TextEncoding::Windows1252);
    EXPECT_EQ(DetectEncoding("\xEF\xBB\xBFplain"), TextEncoding::Utf8);
}

using namespace std::string_literals;
using Lines = std::vector<std::string>;

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

TEST(TextLinesTest, AreTheSameWhicheverWayTheyAreRead) {
    const TempFolder folder;
    const struct {
        const char* what;
        std::string bytes;
        Lines lines;
    } cases[] = {
        {"empty file", "", {}},
        {"one end is one empty line", "\n", {""}},
        {"all three line ends", "a\r\nb\nc\rd", {"a", "b", "c", "d"}},
        {"ends in a row", "\r\r\n\n\r", {"", "", "", ""}},
        {"end at the end starts no line", "a\r\nb\r\n", {"a", "b"}},
        {"byte order mark", "\uFEFFa\n", {"a"}},
        {"byte order mark alone", "\xEF\xBB\xBF", {}},
        {"half a byte order mark", "\xEF\xBB", {"\xC3\xAF\xC2\xBB"}},
        {"nul characters", "a\0b\n\0"s, {"a\0b"s, "\0"s}},
        {"each line in its own encoding",
         "5\xA7Text\n5\xC2\xA7Text\n\x80\x81",
         {"5\xC2\xA7Text", "5\xC2\xA7Text", "\xE2\x82\xAC\xC2\x81"}},
        {"line longer than a block",
         std::string(10'000, 'x') + "\ny",
         {std::string(10'000, 'x'), "y"}},
        {"line end across the border of blocks",
         std::string(4095, 'x') + "\r\ny",
         {std::string(4095, 'x'), "y"}},
        {"lone return at the end of a block",
         std::string(4095, 'x') + "\r",
         {std::string(4095, 'x')}},
        {"letter across the border of blocks",
         std::string(4095, 'x') + "\xC2\xA7\n",
         {std::string(4095, 'x') + "\xC2\xA7"}},
    };
    for (const auto& [what, bytes, lines] : cases) {
        SCOPED_TRACE(what);
        EXPECT_EQ(AllLines(LoadedTextFile(bytes, "")), lines);
        EXPECT_EQ(AllLines(DiskLineReader(folder.Write("x.tbl", bytes))), lines);
    }
}

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
