// Rolling a table: from the path to the finished text.
#include <cmath>
#include <limits>

#include "engine/failure.h"
#include "engine/interpreter.h"
#include "engine/numbers.h"
#include "engine/table_file.h"
#include "engine/text_helpers.h"

namespace quenloft {

/// What a diagnostic tells of a roll, as far as it came.
struct Interpreter::RollReport {
    std::shared_ptr<const TextFile> file;  // Keeps the header line alive.
    TableHeader header;
    std::int32_t roll = 0;
    std::string entry;
};

std::string FailedReferenceText(std::string_view path) {
    return "Failure to get data from " + std::string(path);
}

void Interpreter::EnterFolder(std::string_view folder) {
    const bool isDriveOnly = folder.size() == 2 && folder[1] == ':';
    if (isDriveOnly) {
        files_.ChangeDirectory(std::string(folder) + "\\");
    } else {
        files_.ChangeDirectory(folder);
    }
}

std::string Interpreter::RollTable(std::string_view path, std::int32_t forcedRoll) {
    return RollTarget(ReferenceTarget(FromCurrentDirectory(files_, path)), forcedRoll);
}

std::string Interpreter::RollTarget(const ReferenceTarget& target, std::int32_t forcedRoll) {
    const ChainLink link(*this, target.path);
    const FolderId savedFolder = files_.CurrentFolder();
    // A table given with a drive leaves the current directory at its own folder, any other table
    // the one that was current before: libraries count on the difference.
    const auto resetDirectory = [&] {
        if (target.hasDrive) {
            EnterFolder(target.Folder());
        } else {
            files_.SetCurrentFolder(savedFolder);
        }
    };
    RollReport report;
    std::string description;
    try {
        if (target.folderLength > 0) {
            EnterFolder(target.Folder());
        }
        std::string result = RollOpenTable(target, forcedRoll, report);
        resetDirectory();
        return result;
    } catch (const Failure& failure) {
        description = failure.what();
    } catch (const FileError& error) {
        description = DescriptionOf(error);
    }
    resetDirectory();
    return FailedRollText(target.path, report, description);
}

std::string Interpreter::RollOpenTable(const ReferenceTarget& target, std::int32_t forcedRoll,
                                       RollReport& report) {
    if (target.path.empty()) {
        throw Failure(FailureNumber::FileNotFound, "File not found: the reference is empty");
    }
    if (target.look == files_.Look()) {
        report.file = target.text.lock();
    }
    if (!report.file) {
        report.file = files_.OpenText(target.fileName);
    }
    {
        OpenedFile opened(openFiles_, target.path, *report.file);
        ReadHeader(opened.Handle(), report.header);
        const std::int32_t modifier =
            report.header.modifier.empty() ? 0 : NumericValue(ExpandEntry(report.header.modifier));
        report.roll = Roll(report.header.total, modifier, forcedRoll);
        report.entry = ReadEntry(opened.Handle(), report.roll, report.header.total);
    }
    std::string result = ExpandEntry(report.entry);
    return result.empty() ? result : ApplyCaseOfTableName(target.letterCase, std::move(result));
}

std::int32_t Interpreter::Roll(std::int32_t total, std::int32_t modifier, std::int32_t forcedRoll) {
    const auto seed = static_cast<std::int32_t>(std::nearbyint(random_.Next()));
    std::int64_t roll = dice_.RandomTotal(1, total, false, true, seed);
    roll += modifier;
    if (roll > std::numeric_limits<std::int32_t>::max() ||
        roll < std::numeric_limits<std::int32_t>::min()) {
        throw Failure(FailureNumber::Overflow);
    }
    if (roll < 1) {
        roll = 1;
    }
    if (forcedRoll > 0) {
        roll = forcedRoll;
    }
    if (roll > total) {
        roll = total;
    }
    return static_cast<std::int32_t>(roll);
}

std::string Interpreter::FailedRollText(std::string_view path, const RollReport& report,
                                        const std::string& description) const {
    std::string text = "?Invalid file reference in ";
    text.append(path).append(" ? ").append(kLineBreak);
    text.append("Header: ").append(report.header.line).append(kLineBreak);
    text.append("Roll: ").append(std::to_string(report.roll)).append(kLineBreak);
    text.append("Entry: ").append(report.entry).append(kLineBreak);
    text.append("Dir: ").append(files_.CurrentDirectory()).append(kLineBreak);
    return text.append(description);
}

std::string Interpreter::GetReferenceData(const ReferenceTarget& target, std::int32_t forcedRoll) {
    try {
        return target.isScript ? RunScript(target.path, /*fromRunner=*/false)
                               : RollTarget(target, forcedRoll);
    } catch (const Failure&) {
        return FailedReferenceText(target.path);
    } catch (const FileError&) {
        return FailedReferenceText(target.path);
    }
}

}  // namespace quenloft
