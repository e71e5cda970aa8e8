// What the text editor finds in tables, scripts and the reports of their runs.
#include <gtest/gtest.h>

#include "editors/text/editor_text.h"
#include "editors/text/language_scanner.h"
#include "editors/text/script_report.h"

namespace quenloft {
namespace {

/// A line's length of letters, one for each token; "." where there is none.
std::string Colours(std::u16string_view line, const LineContext& context) {
    constexpr std::string_view kLetters = ".CKLTWSDVRB!";
    std::string colours(line.size(), '.');
    for (const Span& span : ScanLine(line, context).spans) {
        colours.replace(span.start, span.length, span.length,
                        kLetters[static_cast<std::size_t>(span.token)]);
    }
    return colours;
}

struct Case {
    const char16_t* line;
    const char* colours;
};

TEST(LanguageScanner, ColoursScripts) {
    const Case cases[] = {
        {u"", ""},
        {u"; @ note", "CCCCCCCC"},
        {u" ; no note", ".........."},
        {u"GOTO: end ", "KKKKKLLLL."},
        {u"  LABEL:end", "..KKKKKKLLL"},
        {u"END: @", "KKKK.."},
        {u"END IF", "KKKKKK"},
        {u"ELSE #", "KKKK.."},
        {u"else", "...."},
        {u"IFFY", "KK.."},
        {u"IF ??a?? AND 2 OR #", "KK.VVVVV.KKK...KK.."},
        {u"IF ??a", "KK.!!."},
        {u"two @2d6@ | #names^2#", "....DDDDD.B.RRRRRRRRR"},
        {u"@??n??d6@", "DVVVVVDDD"},
        {u"??x=#a#|??", "VVVVRRRVVV"},
        {u"price @ 5", "......!.."},
        {u"#a# and #b", "RRR.....!."},
        {u"what??", "....!!"},
        {u"?? ???", "VVVVV."},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Colours(c.line, {.language = Language::Script}), c.colours);
    }
}

TEST(LanguageScanner, ColoursTables) {
    EXPECT_EQ(Colours(u"Orcs\u00A4 20??x??", {.language = Language::Table, .isHeader = true}),
              "TTTTS.WWVVVVV");
    const Case cases[] = {
        {u"15\u00A7@2d6@ orcs", "WWSDDDDD....."},
        {u"\u00A7x", "S."},
        {u"IF #a#", "...RRR"},
        {u"; 1\u00A7x", "CCCCC"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Colours(c.line, {.language = Language::Table}), c.colours);
    }
}

TEST(LanguageScanner, PairsMarksAcrossTheLinesOfAnEntry) {
    const LineContext first{.language = Language::Table, .later = kReferenceMarks};
    EXPECT_EQ(Colours(u"5\u00A7see #or", first), "WS....RRR");
    EXPECT_EQ(ScanLine(u"5\u00A7see #or", first).open, kReferenceMarks);
    const LineContext second{.language = Language::Table, .open = kReferenceMarks};
    EXPECT_EQ(Colours(u"cs# and @1", second), "RRR.....!.");
    EXPECT_EQ(Colours(u"cs", second), "..") << "the mark in the line before is the lonely one";
}

TEST(LanguageScanner, GoesOnInTheNextPieceOfALongLine) {
    EXPECT_EQ(Colours(u"@", {.part = Part::Comment}), "C");
    EXPECT_EQ(Colours(u"@??a?? OR ", {.part = Part::Condition}), ".VVVVV.KK.");
    EXPECT_EQ(Colours(u"IF d6@", {.part = Part::Text, .open = kDiceMarks}), "DDDDDD");
    EXPECT_EQ(ScanLine(u"; a", {}).part, Part::Comment);
}

TEST(ScriptReports, AreFoundWhereverTheyStand) {
    const auto reports = FindScriptReports(
        "text\r\nErrors in script \r\nin.spt\r\nLine :2\r\nError description :Overflow\r\n"
        "Current Directory :Z:\\lib more\r\nErrors in script \r\nZ:\\a.spt\r\nLine :17\r\n"
        "Error description :Type mismatch\r\nCurrent Directory :Z:\\\r\n"
        "Errors in script \r\nb.spt\r\nLine :many");
    ASSERT_EQ(reports.size(), 2U);
    EXPECT_EQ(reports[0].path + std::to_string(reports[0].line) + reports[0].description,
              "in.spt2Overflow");
    EXPECT_EQ(reports[1].path + std::to_string(reports[1].line) + reports[1].description,
              "Z:\\a.spt17Type mismatch");
    EXPECT_TRUE(FindScriptReports("Errors in script \r\n").empty());
}

}  // namespace
}  // namespace quenloft
