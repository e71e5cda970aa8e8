#include "engine/text_helpers.h"

#include <gtest/gtest.h>

#include "engine/failure.h"
#include "platform/letter_case.h"

namespace quenloft {
namespace {

TEST(TextHelpers, TrimOnlyWhereTheFormatsDo) {
    EXPECT_TRUE(IsCommentLine(";x"));
    EXPECT_FALSE(IsCommentLine(" ;x"));
    EXPECT_TRUE(StartsWithTrimmed(" ;x", ";"));
    EXPECT_TRUE(StartsWithTrimmed("  END IF ", " END IF "));
    EXPECT_FALSE(StartsWithTrimmed("\tIF", "IF"));  // Blanks are cut, tabs are not.
    EXPECT_FALSE(StartsWithTrimmed("en", "end"));
    EXPECT_FALSE(StartsWithTrimmed("if x", "IF"));
}

TEST(TextHelpers, TakePathsApart) {
    EXPECT_TRUE(HasDrive("C:\\x"));
    EXPECT_FALSE(HasDrive("C:x"));
    EXPECT_EQ(DirectoryPart("x.tbl"), "");
    EXPECT_EQ(DirectoryPart("C:\\x.tbl"), "C:");
    EXPECT_EQ(DirectoryPart("..\\sub\\x"), "..\\sub");
    EXPECT_EQ(FileBaseName("C:\\lib\\a.b.tbl"), "a");
    EXPECT_EQ(FileExtension("C:\\lib\\a.b.tbl"), "b.tbl");
    EXPECT_EQ(FileExtension("C:\\l.ib\\noext"), "noext");
    EXPECT_TRUE(IsScriptPath("x.SpT"));
    EXPECT_FALSE(IsScriptPath("spt"));
    EXPECT_FALSE(IsTablePath("xtbl"));
}

TEST(TextHelpers, CapitaliseAfterBlanksAndLineFeedsOnly) {
    EXPECT_EQ(CapitaliseWords("one two\r\nthree"), "One Two\r\nThree");
    EXPECT_EQ(CapitaliseWords("one-two"), "One-two");
    EXPECT_EQ(CapitaliseWords("one\r\ntwo"), "One\r\ntwo");  // No blank: the first letter only.
    EXPECT_EQ(CapitaliseWords("élan être"), "Élan Être");
    EXPECT_THROW(CapitaliseWords(""), Failure);
}

TEST(TextHelpers, NameOfTheFileChoosesTheCase) {
    // The simple names are cases of tests/language.
    EXPECT_EQ(ApplyCaseOfTableName(LetterCaseOfName("Na.B.tbl"), "bob smith"), "Bob Smith");
    EXPECT_EQ(ApplyCaseOfTableName(LetterCaseOfName("Élan.tbl"), "bob"), "bob");  // Only A to Z.
    EXPECT_THROW(ApplyCaseOfTableName(LetterCaseOfName("A.tbl"), "bob"), Failure);
    for (const auto& [name, result] :
         {std::pair("a.spt", "bob de la cour"), std::pair("Abc.spt", "Bob de la cour"),
          std::pair("A.spt", "Bob De La Cour"), std::pair("ABC.spt", "BOB DE LA COUR")}) {
        EXPECT_EQ(ApplyCaseOfScriptName(LetterCaseOfName(name), "bob de la cour"), result);
    }
}

TEST(LetterCase, CoversUnicodeWhateverTheLocale) {
    EXPECT_EQ(UpperCase("straße çà ÿ ω я ǆ"), "STRAßE ÇÀ Ÿ Ω Я Ǆ");
    EXPECT_EQ(FoldCase("ΌΔΟΣ"), FoldCase("όδος"));
    EXPECT_EQ(UpperCase("a\xFF\xC3(\xED\xA0\x80z"), "A\xFF\xC3(\xED\xA0\x80Z");  // Not UTF-8: kept.
}

}  // namespace
}  // namespace quenloft
