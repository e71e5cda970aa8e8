#include "shell/save_text.h"

#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "platform/replacing.h"
#include "platform/text_encoding.h"
#include "shell/service_set.h"

namespace quenloft {

bool SaveNewText(const ServiceSet& services, const std::string& path, const std::string& text) {
    if (!MayReplace(services.files, services.dialogs, path)) {
        return false;
    }
    std::string bytes = text;
    if (const auto inCodePage = ToWindows1252(text)) {
        bytes = *inCodePage;
    } else if (services.dialogs.AskYesNo("The text for " + path +
                                         " holds characters that Windows-1252 lacks. "
                                         "Save it as UTF-8?") != Answer::Yes) {
        return false;
    }
    try {
        services.files.WriteBytes(path, bytes);
        return true;
    } catch (const FileError& error) {
        services.dialogs.ShowMessage(std::string(error.what()) + ".", MessageIcon::Warning);
        return false;
    }
}

}  // namespace quenloft
