#include "platform/text_encoding.h"

#include <gtest/gtest.h>
#include <string>

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

}  // namespace
}  // namespace quenloft
