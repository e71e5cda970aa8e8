#include "editors/reference/reference_list.h"

#include <algorithm>

#include "editors/reference/reference_place.h"
#include "engine/engine.h"
#include "engine/text_helpers.h"
#include "platform/letter_case.h"

namespace quenloft {
namespace {

using Kind = ReferenceItem::Kind;

// Titles of so many tables take some tens of megabytes; no library has as many.
constexpr std::size_t kMostTitles = 200'000;

std::optional<Kind> KindOf(const FolderEntry& entry) {
    if (entry.isFolder) {
        return Kind::Folder;
    }
    const std::string extension = UpperCase(FileExtension(entry.name));
    if (extension == "TBL") {
        return Kind::Table;
    }
    return extension == "SPT" ? std::optional(Kind::Script) : std::nullopt;
}

bool IsHidden(const FolderEntry& entry) { return Trimmed(entry.name).starts_with('~'); }

// A blank title would leave nothing to choose by.
std::string TitleOrName(const std::string& title, std::string_view name) {
    return Trimmed(title).empty() ? std::string(FileBaseName(name)) : ShownTitle(title);
}

std::vector<std::string> WordsOf(std::string_view text) {
    std::vector<std::string> words;
    while (!(text = Trimmed(text)).empty()) {
        const std::size_t end = std::min(text.find(' '), text.size());
        words.push_back(FoldCase(text.substr(0, end)));
        text.remove_prefix(end);
    }
    return words;
}

}  // namespace

ReferenceList::ReferenceList(Engine& engine) : engine_(engine) {}

void ReferenceList::Fill(const ReferencePlace& place, bool showHidden) {
    entries_.clear();
    next_ = 0;
    failure_.clear();
    folder_ = place.Folder() + "\\";
    if (titles_.size() > kMostTitles) {
        titles_.clear();
    }
    engine_.Files().LookAgain();
    try {
        for (FolderEntry& entry : engine_.Files().ListFolder(place.PathOf({}))) {
            const std::optional<Kind> kind = KindOf(entry);
            if (kind && (showHidden || !IsHidden(entry))) {
                entries_.push_back(MakeEntry({*kind, std::move(entry.name), {}}));
            }
        }
    } catch (const FileError& error) {
        failure_ = error.what();
    }
    Arrange();
}

bool ReferenceList::ReadOne() {
    while (IsReading() && entries_[next_].item.kind != Kind::Table) {
        ++next_;
    }
    if (!IsReading()) {
        return false;
    }
    Entry& entry = entries_[next_++];
    const std::string path = folder_ + entry.item.name;
    entry.item.title = TitleOrName(engine_.ReadTableTitle(path), entry.item.name);
    entry.titleKey = FoldCase(entry.item.title);
    titles_[path] = entry.item.title;
    return true;
}

void ReferenceList::SetFilter(std::string_view text) {
    words_ = WordsOf(text);
    Arrange();
}

void ReferenceList::SetOrder(Order order, bool descending) {
    order_ = order;
    descending_ = descending;
    Arrange();
}

void ReferenceList::Arrange() {
    rows_.clear();
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        if (IsLetThrough(entries_[i])) {
            rows_.push_back(i);
        }
    }
    std::sort(rows_.begin(), rows_.end(), [this](std::size_t left, std::size_t right) {
        return IsBefore(entries_[left], entries_[right]);
    });
}

std::optional<std::size_t> ReferenceList::RowOf(std::string_view name) const {
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        if (Row(row).name == name) {
            return row;
        }
    }
    return std::nullopt;
}

ReferenceList::Entry ReferenceList::MakeEntry(ReferenceItem item) {
    item.title = item.kind == Kind::Folder ? item.name : std::string(FileBaseName(item.name));
    if (const auto known = titles_.find(folder_ + item.name);
        item.kind == Kind::Table && known != titles_.end()) {
        item.title = known->second;
    }
    std::string nameKey = FoldCase(item.name);
    std::string titleKey = FoldCase(item.title);
    return {std::move(item), std::move(nameKey), std::move(titleKey)};
}

bool ReferenceList::IsLetThrough(const Entry& entry) const {
    return std::all_of(words_.begin(), words_.end(), [&entry](const std::string& word) {
        return entry.nameKey.find(word) != std::string::npos ||
               entry.titleKey.find(word) != std::string::npos;
    });
}

bool ReferenceList::IsBefore(const Entry& left, const Entry& right) const {
    const bool leftIsFolder = left.item.kind == Kind::Folder;
    if (leftIsFolder != (right.item.kind == Kind::Folder)) {
        return leftIsFolder;
    }
    const Entry& first = descending_ ? right : left;
    const Entry& second = descending_ ? left : right;
    if (order_ == Order::Title && first.titleKey != second.titleKey) {
        return first.titleKey < second.titleKey;
    }
    if (first.nameKey != second.nameKey) {
        return first.nameKey < second.nameKey;
    }
    return first.item.name < second.item.name;
}

}  // namespace quenloft
