// What is read of files from anywhere; what is written is read again as it was.
#include <gtest/gtest.h>

#include "author/list_label.h"
#include "author/rtf_reader.h"
#include "author/rtf_writer.h"
#include "tests/author/random_text.h"
#include "tests/author/rich_text_outline.h"
#include "tests/support/repeated.h"

namespace quenloft {
namespace {

struct Case {
    const char* description;
    std::string rtf;  ///< Behind "{\rtf1\ansi" and before "}".
    const char* outline;
};

void Check(const std::vector<Case>& cases) {
    for (const Case& c : cases) {
        EXPECT_EQ(OutlineOf(ReadRtf("{\\rtf1\\ansi" + c.rtf + "}").text), c.outline)
            << c.description;
    }
}

TEST(RtfReader, TextAndItsCharacters) {
    Check({
        {"line ends of the file are none of the text", " a\r\nb\n\\par\r\nc", "ab|c"},
        {"a backslash before a line end is a paragraph's end", " a\\\r\nb\\\nc", "a|b|c"},
        {"the last paragraph's end makes no empty one", " a\\par\\par b\\par", "a||b"},
        {"symbols", " \\\\\\{\\}\\~\\_\\-", "\\{}\u00A0\u2011\u00AD"},
        {"signs by name",
         " \\lquote a\\rquote\\ldblquote b\\rdblquote\\bullet\\endash\\emdash\\tab\\line c",
         "\u2018a\u2019\u201Cb\u201D\u2022\u2013\u2014\t\u2028"
         "c"},
        {"bytes of Windows-1252, escaped and raw", " \\'80\\'E9\xE9\\'zz.",
         "\u20AC\u00E9\u00E9zz."},
        {"Unicode with its fallback", " \\u8364?\\u-10179?\\u-8704 ?\\u233\\'e9x",
         "\u20AC\U0001F600\u00E9x"},
        {"a longer fallback", "\\uc2 \\u8364 EUx{\\uc0\\u8364 y}\\u8364 EUz",
         "\u20ACx\u20ACy\u20ACz"},
        {"a fallback that is a sign's name", " \\u8220\\ldblquote x\\u8220\\par y",
         "\u201Cx\u201C|y"},
        {"surrogates across a change of the fallback", "\\uc0\\u55357 \\uc1\\u-8704 ?x",
         "\U0001F600x"},
        {"half a pair", " \\u-10179?x\\u-8704?", "\uFFFDx\uFFFD"},
        {"what no text has", std::string(" a\\'00\\'01\\u0?\\u64976?\\u65532?b") + '\0', "ab"},
        {"hidden and deleted text", " a{\\v b}{\\deleted c}\\v\\v0 d", "ad"},
        {"groups that are not known",
         " a{\\*\\nosuch b{c}}d{\\info{\\title e}}{\\stylesheet{\\s1 f;}}", "ad"},
        {"binary data with braces", " a{\\*\\x\\bin3 }}}}b\\bin2 \\}c", "abc"},
    });
}

TEST(RtfReader, CharacterFormats) {
    const std::string fonts =
        "\\deff1{\\fonttbl{\\f0\\froman\\fcharset0 Times New Roman;}{\\f1 Arial{\\*\\falt Helv};}}";
    const std::string colors = "{\\colortbl ;\\red255\\green0\\blue0;\\red0\\green300\\blue9;}";
    Check({
        {"on and off", "\\b b\\i bi\\b0 i\\i0 .", "{b:b}{b i:bi}{i:i}."},
        {"for a group only", " a{\\b b{\\i c}d}e", "a{b:b}{b i:c}{b:d}e"},
        {"every underline", "{\\ul a}{\\uldb b}{\\ulw c}{\\uldash d}\\ul e\\ulnone f\\ul\\ul0 g",
         "{u:abcde}fg"},
        {"struck, raised, lowered, capitals",
         "{\\strike a}\\super b\\nosupersub c\\sub d\\plain e\\up6 f\\up0 g\\dn4 h\\dn0\\caps "
         "i\\caps0\\scaps j",
         "{s:a}{super:b}c{sub:d}e{super:f}g{sub:h}{caps:i}{scaps:j}"},
        {"fonts and sizes", fonts + "a\\f0\\fs40 b\\f7 c\\plain d",
         "{Arial:a}{40 Times New Roman:b}{40:c}{Arial:d}"},
        {"a font's name in Unicode", "{\\fonttbl{\\f0 M\\u252?rz\\'e9;}}a", "{M\u00FCrz\u00E9:a}"},
        {"colours", colors + "a\\cf1 b\\cf2 c\\cf9 d\\cf0 e", "a{255,0,0:b}{0,255,9:c}de"},
        {"sizes out of bounds", "\\fs0 a\\fs-5 b\\fs99999999 c", "ab{3276:c}"},
        {"a table that starts with a colour", "{\\colortbl\\red1\\green2\\blue3;}a\\cf0 b",
         "a{1,2,3:b}"},
        {"all backgrounds",
         colors +
             "{\\highlight1 a}{\\cb2 b}{\\chcbpat1 c}\\highlight2\\cb0\\chcbpat0 d\\highlight0 e",
         "{on 255,0,0:a}{on 0,255,9:b}{on 255,0,0:c}{on 0,255,9:d}e"},
    });
}

TEST(RtfReader, Paragraphs) {
    Check({
        {"alignment", "\\qc a\\par b\\par\\pard c\\par\\qr d\\par\\ql e\\par\\qj f",
         "<qc>a|<qc>b|c|<qr>d|e|<qj>f"},
        {"indents and space", "\\li720\\ri360\\fi-360\\sb120\\sa60 a\\par\\pard b",
         "<li720 ri360 fi-360 sb120 sa60>a|b"},
        {"line spacing",
         "\\sl360\\slmult1 a\\par\\sl240\\slmult1 b\\par\\sl-300\\slmult0 c\\par\\sl300 "
         "d\\par\\sl0 e",
         "<multiple 360>a|b|<exactly 300>c|<at least 300>d|e"},
        {"bounds", "\\li99999999\\fi-99999999 a", "<li31680 fi-31680>a"},
        {"tab stops", "\\tx720\\tx1440 a\\tab b\\par\\pard c", "<tx720 tx1440>a\tb|c"},
        {"pages", " a\\page b\\par\\pagebb c\\par\\pard\\page d", "a|<page>b|<page>c|<page>d"},
        {"the format of a group is that of what ends in it", "{\\qc a\\par}b{\\pard\\qr c}\\par",
         "<qc>a|bc"},
        {"a table as text",
         "\\trowd\\cellx99\\intbl a\\cell b\\cell\\row\\trowd c\\cell\\cell\\row\\pard d",
         "a\tb|c\t|d"},
        {"a table in a cell",
         "\\trowd\\intbl\\itap2 a\\nestcell "
         "b\\nestcell{\\*\\nesttableprops\\trowd\\cellx9\\nestrow}"
         "{\\nonesttables\\par}c\\nestcell d\\nestcell{\\*\\nesttableprops\\trowd\\nestrow}\\itap1 "
         "e\\cell f\\cell\\row",
         "a\tb|c\td|e\tf"},
    });
}

TEST(RtfReader, Lists) {
    const std::string bullet =
        "{\\pntext\\f1\\'b7\\tab}{\\*\\pn\\pnlvlblt\\pnf1\\pnindent0{\\pntxtb\\'b7}}";
    const std::string pn = "{\\*\\pn\\pnlvlbody\\pnindent0\\pnstart3\\pndec{\\pntxta.}}";
    const std::string table =
        "{\\*\\listtable{\\list{\\listlevel\\levelnfc0\\levelstartat5{\\leveltext\\'02\\'00.;}}"
        "{\\listlevel\\levelnfc4{\\leveltext\\'02\\'01.;}}{\\listlevel\\levelnfc23{\\leveltext\\'"
        "01\\u8226 ?;}}"
        "{\\listname "
        ";}\\listid77}}{\\*\\listoverridetable{\\listoverride\\listid77\\listoverridecount0\\ls2}}";
    Check({
        {"bullets", "\\pard" + bullet + "\\fi-360\\li720 a\\par{\\pntext\\'b7\\tab}b\\par\\pard c",
         "<\u2022 li720 fi-360>a|<\u2022 li720 fi-360>b|c"},
        {"the number that is shown counts",
         "\\pard{\\pntext 7.\\tab}" + pn + "a\\par{\\pntext 8.\\tab}b", "<7>a|<8>b"},
        {"no number is shown", "\\pard" + pn + "a\\par b\\par\\pard c\\par" + pn + "d",
         "<3>a|<4>b|c|<3>d"},
        {"letters and figures",
         "\\pard{\\pntext (iv)\\tab}{\\*\\pn\\pnlvlbody\\pnlcrm}a\\par\\pard"
         "{\\pntext C)\\tab}{\\*\\pn\\pnlvlbody\\pnucltr}b",
         "<iv>a|<C>b"},
        {"levels of the list table",
         table +
             "\\ls2\\ilvl0{\\listtext 5.\\tab}a\\par\\ilvl1 b\\par c\\par\\ilvl2 d\\par\\ilvl0 e",
         "<5>a|<a level1>b|<b level1>c|<\u2022 level2>d|<6>e"},
        {"lists that are in no table",
         "{\\listtext\\'b7\\tab}\\ls9 a\\par{\\listtext 2.\\tab}b\\par\\ls9 c", "<\u2022>a|<2>b|c"},
    });
}

TEST(RtfReader, CodePages) {
    const std::string fonts =
        "{\\fonttbl{\\f0\\fcharset204 A;}{\\f1\\fcharset238 B;}{\\f2\\fcharset128 C;}{\\f3 "
        "D;}{\\f4\\fcharset161 E;}{\\f5\\fcharset0 F;}{\\f6\\cpg437 G;}}";
    Check({
        {"by font", fonts + "\\f0\\'cf\\f1\\'b3\\f2\\'83\\'65\\'83X\\f4\\'e1\\f5\\'e1\\f6\\'81",
         "{A:\u041F}{B:\u0142}{C:\u30C6\u30B9}{E:\u03B1}{F:\u00E1}{G:\u00FC}"},
        {"of the file", "\\ansicpg1251" + fonts + "\\f3\\'cf\xcf", "{D:\u041F\u041F}"},
        {"each of the Windows family",
         "{\\fonttbl{\\f1\\cpg1250;A;}}\\ansicpg1250\\'9c{\\ansicpg1253\\'e2}\\ansicpg1254\\'"
         "f0\\ansicpg1255\\'e0"
         "\\ansicpg1256\\'c7\\ansicpg1257\\'eb\\ansicpg1258\\'fe\\ansicpg874\\'a1\\ansicpg936\\'"
         "d6\\'d0\\ansicpg949\\'b0\\'a1\\ansicpg950\\'a4\\'a4",
         "\u015B\u03B2\u011F\u05D0\u0627\u0117\u20AB\u0E01\u4E2D\uAC00\u4E2D"},
        {"one that does not exist", "\\ansicpg99999\\'e9", "\u00E9"},
        {"bytes that are none of it", "\\ansicpg932\\'83", "\u0192"},
    });
}

TEST(RtfReader, TellsWhatItLeftOut) {
    const struct {
        const char* rtf;
        const char* outline;
        const char* losses;
    } cases[] = {
        {"a\\par\\b b", "a|{b:b}", ""},
        {"a{\\pict\\wmetafile8 0102}b{\\*\\shppict{\\pict 03}}{\\nonshppict{\\pict 04}}", "ab",
         "pictures"},
        {"{\\header h}{\\footerl f}a{\\footnote n}\\trowd b\\cell\\row{\\v c}", "ab",
         "the form of tables, headers and footers, footnotes and hidden text"},
        {"{\\field{\\*\\fldinst HYPERLINK \"http://x\"}{\\fldrslt{\\ul here}}}{\\*\\annotation "
         "c}{\\object{\\result r}}{\\shp s}",
         "{u:here}", "embedded objects, drawings, comments and links and other fields"},
    };
    for (const auto& c : cases) {
        const RtfContent content = ReadRtf("{\\rtf1 " + std::string(c.rtf) + "}");
        EXPECT_EQ(OutlineOf(content.text), c.outline);
        EXPECT_EQ(NamesOf(content.losses), c.losses);
    }
}

TEST(RtfReader, KnowsItsFilesByTheirFirstBytes) {
    for (const char* rtf : {"{\\rtf1}", "\xEF\xBB\xBF\r\n {\\rtf1}"}) {
        EXPECT_TRUE(IsRtf(rtf)) << rtf;
    }
    for (const char* text : {"{\\rt", " \r\n", "notes {\\rtf1}"}) {
        EXPECT_FALSE(IsRtf(text)) << text;
    }
}

TEST(RtfReader, BrokenFilesGiveTheTextThatCanBeRead) {
    const struct {
        const char* description;
        std::string bytes;
        const char* outline;
    } cases[] = {
        {"too many ends", "{\\rtf1 a}}}b", "a|b"},
        {"no end", "{\\rtf1{\\b a", "{b:a}"},
        {"Unicode at the end", "{\\rtf1 a\\u", "a"},
        {"half a Unicode pair at the end", "{\\rtf1 a\\u-10179", "a\uFFFD"},
        {"binary data past the end", "{\\rtf1 a\\bin999999999 b}", "a"},
        {"binary data without a length", "{\\rtf1 a\\bin-5 b\\bin c}", "abc"},
        {"a list's end in the middle", "{\\rtf1\\pard{\\*\\pn\\pnlvlblt}a", "<\u2022>a"},
        {"a star inside of a group",
         "{\\rtf1\\ansi one \\* two \\b three\\b0  four\\par five\\par}",
         "one  two {b:three} four|five"},
        {"numbers past all bounds",
         "{\\rtf1\\uc99999999999\\ls99999999999\\ilvl-3 a\\u99999999999 b", "a"},
    };
    for (const auto& c : cases) {
        const std::string outline = OutlineOf(ReadRtf(c.bytes).text);
        EXPECT_EQ(outline, c.outline) << c.description;
    }
}

TEST(RtfReader, GroupsMayNestAsDeepAsTheyLike) {
    const std::string open(100'000, '{');
    const std::string close(100'000, '}');
    EXPECT_EQ(OutlineOf(ReadRtf("{\\rtf1 a" + open + "\\b b" + close + "c}").text), "a{b:b}c");
    EXPECT_EQ(OutlineOf(ReadRtf("{\\rtf1 a" + open + "b{\\*\\y z}c{\\pict 00}d").text), "abcd");
    EXPECT_EQ(OutlineOf(ReadRtf("{\\rtf1 a" + Repeated("{\\*\\x{\\'", 100'000)).text), "a");
}

TEST(RtfReader, ReadsNoMoreThanAWindowCanShow) {
    const RtfContent content =
        ReadRtf("{\\rtf1 " + std::string((std::size_t{16} << 20) - 4, 'a') + "\\par\\b bcdefgh}");
    ASSERT_EQ(content.text.paragraphs.size(), 1U);
    EXPECT_EQ(NamesOf(content.losses), "the text past the first 16 MiB");
    const std::string manyParagraphs = Repeated("\\par", 300'000);
    EXPECT_EQ(ReadRtf("{\\rtf1 " + manyParagraphs).text.paragraphs.size(), 250'000U);
}

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
