#include "editors/shared/unsaved_lines.h"

#include <QPlainTextEdit>
#include <QTextDocument>

#include "editors/shared/edited_file.h"
#include "shell/document_text.h"

namespace quenloft {

std::optional<UnsavedWork> UnsavedLines(const QPlainTextEdit& box, const EditedFile& file) {
    const QTextDocument& document = *box.document();
    if (!document.isModified() || (document.isEmpty() && file.Path().empty())) {
        return std::nullopt;
    }
    return UnsavedWork{file.Path(), file.Base(), static_cast<std::uint64_t>(document.revision()),
                       [&document] { return LinesLater(document); }};
}

}  // namespace quenloft
