#include "author/rtf_keywords.h"

#include <algorithm>
#include <iterator>

namespace quenloft {
namespace {

struct Keyword {
    std::string_view name;
    RtfMeaning meaning;
};

constexpr RtfCharFlag kUnderline{&RtfCharState::underline};
constexpr RtfSkippedGroup kSilently{std::nullopt};

// In the order of their names: they are searched by halves.
// clang-format off
constexpr Keyword kKeywords[] = {
    {"annotation", RtfSkippedGroup{Loss::Comments}},
    {"ansicpg", RtfAction::CodePage},
    {"b", RtfCharFlag{&RtfCharState::bold}},
    {"bullet", RtfCharacter{0x2022}},
    {"caps", RtfCapitals{Capitals::All}},
    {"cb", RtfCharNumber{&RtfCharState::background}},
    {"cell", RtfAction::CellEnd},
    {"cf", RtfCharNumber{&RtfCharState::color}},
    {"chcbpat", RtfCharNumber{&RtfCharState::shading}},
    {"colortbl", RtfGroup{RtfDestination::Colors}},
    {"deff", RtfAction::DefaultFont},
    {"deleted", RtfCharFlag{&RtfCharState::hidden}},
    {"dn", RtfPosition{ScriptPosition::Sub}},
    {"do", RtfSkippedGroup{Loss::Drawings}},
    {"emdash", RtfCharacter{0x2014}},
    {"emspace", RtfCharacter{0x2003}},
    {"endash", RtfCharacter{0x2013}},
    {"enspace", RtfCharacter{0x2002}},
    {"f", RtfCharNumber{&RtfCharState::font}},
    {"fi", RtfParagraphNumber{&ParagraphFormat::firstIndent}},
    {"filetbl", kSilently},
    {"fldinst", RtfSkippedGroup{Loss::Fields}},
    {"fonttbl", RtfGroup{RtfDestination::Fonts}},
    {"footer", RtfSkippedGroup{Loss::HeadersAndFooters}},
    {"footerf", RtfSkippedGroup{Loss::HeadersAndFooters}},
    {"footerl", RtfSkippedGroup{Loss::HeadersAndFooters}},
    {"footerr", RtfSkippedGroup{Loss::HeadersAndFooters}},
    {"footnote", RtfSkippedGroup{Loss::Footnotes}},
    {"fs", RtfAction::Size},
    {"header", RtfSkippedGroup{Loss::HeadersAndFooters}},
    {"headerf", RtfSkippedGroup{Loss::HeadersAndFooters}},
    {"headerl", RtfSkippedGroup{Loss::HeadersAndFooters}},
    {"headerr", RtfSkippedGroup{Loss::HeadersAndFooters}},
    {"highlight", RtfCharNumber{&RtfCharState::highlight}},
    {"i", RtfCharFlag{&RtfCharState::italic}},
    {"ilvl", RtfAction::ListLevel},
    {"info", kSilently},
    {"ldblquote", RtfCharacter{0x201C}},
    {"li", RtfParagraphNumber{&ParagraphFormat::leftIndent}},
    {"line", RtfCharacter{0x2028}},
    {"listoverridetable", RtfGroup{RtfDestination::Lists}},
    {"listtable", RtfGroup{RtfDestination::Lists}},
    {"listtext", RtfGroup{RtfDestination::Label}},
    {"lquote", RtfCharacter{0x2018}},
    {"ls", RtfAction::List},
    {"ltrmark", RtfCharacter{0x200E}},
    {"mmath", RtfSkippedGroup{Loss::Objects}},
    {"nestcell", RtfAction::CellEnd},
    {"nestrow", RtfAction::RowEnd},
    {"nesttableprops", RtfGroup{RtfDestination::Text}},
    {"nonesttables", kSilently},
    {"nonshppict", kSilently},
    {"nosupersub", RtfAction::NoPosition},
    {"object", RtfSkippedGroup{Loss::Objects}},
    {"page", RtfAction::PageBreak},
    {"pagebb", RtfAction::PageBreakBefore},
    {"par", RtfAction::ParagraphEnd},
    {"pard", RtfAction::ParagraphDefaults},
    {"pict", RtfSkippedGroup{Loss::Pictures}},
    {"plain", RtfAction::Plain},
    {"pn", RtfGroup{RtfDestination::Numbering}},
    {"pnseclvl", kSilently},
    {"pntext", RtfGroup{RtfDestination::Label}},
    {"pntxta", kSilently},
    {"pntxtb", kSilently},
    {"qc", RtfAlignment{Alignment::Center}},
    {"qj", RtfAlignment{Alignment::Justify}},
    {"ql", RtfAlignment{Alignment::Left}},
    {"qmspace", RtfCharacter{0x2005}},
    {"qr", RtfAlignment{Alignment::Right}},
    {"rdblquote", RtfCharacter{0x201D}},
    {"ri", RtfParagraphNumber{&ParagraphFormat::rightIndent}},
    {"row", RtfAction::RowEnd},
    {"rquote", RtfCharacter{0x2019}},
    {"rtlmark", RtfCharacter{0x200F}},
    {"sa", RtfParagraphNumber{&ParagraphFormat::spaceAfter}},
    {"sb", RtfParagraphNumber{&ParagraphFormat::spaceBefore}},
    {"scaps", RtfCapitals{Capitals::Small}},
    {"sect", RtfAction::ParagraphEnd},
    {"shp", RtfSkippedGroup{Loss::Drawings}},
    {"shpgrp", RtfSkippedGroup{Loss::Drawings}},
    {"shppict", RtfSkippedGroup{Loss::Pictures}},
    {"sl", RtfAction::LineHeight},
    {"slmult", RtfAction::LineHeightIsMultiple},
    {"strike", RtfCharFlag{&RtfCharState::strike}},
    {"striked", RtfCharFlag{&RtfCharState::strike}},
    {"stylesheet", kSilently},
    {"sub", RtfPosition{ScriptPosition::Sub}},
    {"super", RtfPosition{ScriptPosition::Super}},
    {"tab", RtfCharacter{'\t'}},
    {"tc", kSilently},
    {"trowd", RtfAction::RowStart},
    {"tx", RtfAction::TabStop},
    {"u", RtfAction::Unicode},
    {"uc", RtfAction::FallbackLength},
    {"ul", kUnderline},
    {"uld", kUnderline},
    {"uldash", kUnderline},
    {"uldashd", kUnderline},
    {"uldashdd", kUnderline},
    {"uldb", kUnderline},
    {"ulhwave", kUnderline},
    {"ulldash", kUnderline},
    {"ulnone", RtfAction::NoUnderline},
    {"ulth", kUnderline},
    {"ulthd", kUnderline},
    {"ulthdash", kUnderline},
    {"ulthdashd", kUnderline},
    {"ulthdashdd", kUnderline},
    {"ulthldash", kUnderline},
    {"ululdbwave", kUnderline},
    {"ulw", kUnderline},
    {"ulwave", kUnderline},
    {"up", RtfPosition{ScriptPosition::Super}},
    {"v", RtfCharFlag{&RtfCharState::hidden}},
    {"xe", kSilently},
    {"zwbo", RtfCharacter{0x200B}},
    {"zwj", RtfCharacter{0x200D}},
    {"zwnj", RtfCharacter{0x200C}},
};
// clang-format on

constexpr bool ComesBefore(const Keyword& one, const Keyword& other) {
    return one.name < other.name;
}
static_assert(std::is_sorted(std::begin(kKeywords), std::end(kKeywords), ComesBefore));

}  // namespace

RtfMeaning MeaningOf(std::string_view name) {
    const auto* found = std::lower_bound(
        std::begin(kKeywords), std::end(kKeywords), name,
        [](const Keyword& keyword, std::string_view sought) { return keyword.name < sought; });
    const bool isThere = found != std::end(kKeywords) && found->name == name;
    return isThere ? found->meaning : RtfMeaning();
}

}  // namespace quenloft
