// What is written is read again as it was; what is cut off anywhere is read as far as it goes.
#include <gtest/gtest.h>

#include "author/list_label.h"
#include "author/rtf_reader.h"
#include "author/rtf_writer.h"
#include "tests/author/random_text.h"
#include "tests/author/rich_text_outline.h"

namespace quenloft {
namespace {

TEST(RtfRoundTrip, WhateverIsWrittenIsReadAgain) {
    for (unsigned seed = 0; seed < 400; ++seed) {
        const RichText text = RandomText(seed).Make();
        const std::string rtf = WriteRtf(text);
        const RtfContent content = ReadRtf(rtf);
        ASSERT_EQ(content.text, text) << "seed " << seed << "\n" << rtf;
        ASSERT_EQ(NamesOf(content.losses), "");
    }
}

TEST(RtfRoundTrip, TheFileIsAsWordProcessorsExpectIt) {
    const CharFormat plain{.font = "Serif", .halfPoints = 20};
    CharFormat marked = plain;
    marked.bold = true;
    marked.color = 0xFF0000;
    marked.background = 0xFFFF00;
    const ParagraphFormat item{
        .leftIndent = 720, .firstIndent = -360, .list = {ListKind::Decimal, 1, 4}, .tabStops = {}};
    const ParagraphFormat bullet{.list = {ListKind::Bullet, 0, 0}, .tabStops = {}};
    const RichText text{{{{}, {{"a\u20AC\u4E2D\U0001F600", plain}, {"b", marked}}, plain},
                         {item, {{"four", plain}}, plain},
                         {bullet, {}, plain}}};
    EXPECT_EQ(
        WriteRtf(text),
        "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1\r\n"
        "{\\fonttbl{\\f0\\fnil\\fcharset0 Serif;}}\r\n"
        "{\\colortbl ;\\red255\\green0\\blue0;\\red255\\green255\\blue0;}\r\n"
        "\\pard \\fs20 a\\'80\\u20013?\\u-10179?\\u-8704?\\b\\cf1\\highlight2\\cb2\\chcbpat2 b"
        "\\b0\\cf0\\highlight0\\cb0\\chcbpat0 \\par\r\n"
        "\\pard\\ilvl1{\\pntext "
        "4.\\tab}{\\*\\pn\\pnlvlbody\\pnf0\\pnindent0\\pnstart4\\pndec{\\pntxta.}}\\fi-360\\li720 "
        "four\\par\r\n"
        "\\pard{\\pntext \\'95\\tab}{\\*\\pn\\pnlvlblt\\pnf0\\pnindent0{\\pntxtb\\'95}}\\par\r\n"
        "}\r\n");
    EXPECT_EQ(OutlineOf(ReadRtf(WriteRtf({})).text), "");
}

TEST(RtfRoundTrip, AFileMayEndAnywhere) {
    std::string rtf = WriteRtf(RandomText(1).Make());
    rtf.insert(rtf.rfind('}'),
               "{\\field{\\*\\fldinst X}{\\fldrslt\\ul y}}{\\*\\shppict{\\pict\\bin4 "
               "}{}{}}\\ansicpg932\\'83\\'65\\trowd a\\cell\\row"
               "{\\listtext 1.\\tab}\\ls1\\uc2\\u-10179??\\u-8704??");
    std::string longest;
    for (std::size_t length = 0; length <= rtf.size(); ++length) {
        const RichText text = ReadRtf(std::string_view(rtf).substr(0, length)).text;
        ASSERT_FALSE(text.paragraphs.empty());
        // What was read of less of it and written is a document, too.
        const RichText again = ReadRtf(WriteRtf(text)).text;
        ASSERT_EQ(again.paragraphs.size(), text.paragraphs.size()) << length;
    }
}

TEST(ListLabel, NumbersAndLabelsAreEachOthersInverse) {
    const struct {
        ListKind kind;
        int number;
        const char* label;
    } cases[] = {
        {ListKind::Decimal, 12, "12"},     {ListKind::LowerLetter, 27, "aa"},
        {ListKind::UpperLetter, 52, "AZ"}, {ListKind::LowerRoman, 1994, "mcmxciv"},
        {ListKind::UpperRoman, 4, "IV"},   {ListKind::UpperRoman, 4000, "4000"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(ListLabel(c.kind, c.number), c.label);
        EXPECT_EQ(NumberOfLabel(c.kind, "(" + std::string(c.label) + ") "), c.number);
    }
    EXPECT_EQ(NumberOfLabel(ListKind::Decimal, "2.13."), 13);
    EXPECT_EQ(NumberOfLabel(ListKind::LowerRoman, "iiii"), std::nullopt);
    EXPECT_EQ(NumberOfLabel(ListKind::Decimal, "99999999999"), std::nullopt);
    EXPECT_EQ(NumberOfLabel(ListKind::LowerLetter, ""), std::nullopt);
}

}  // namespace
}  // namespace quenloft
