#include "shell/recovery/readable_text.h"

#include "author/plain_text.h"
#include "editors/shared/text_form.h"
#include "editors/table/kept_table.h"
#include "editors/table/table_reading.h"
#include "shell/form_names.h"

namespace quenloft {
namespace {

std::string TextOfNotes(std::string_view bytes) {
    const RtfContent content = IsRtf(bytes) ? ReadRtf(bytes) : ReadPlainText(bytes);
    std::string text;
    for (const Paragraph& paragraph : content.text.paragraphs) {
        for (const TextRun& run : paragraph.runs) {
            text += run.text;
        }
        text += '\n';
    }
    return text;
}

}  // namespace

std::string ReadableKept(const KeptText& kept) {
    if (kept.form == form::kEditTable) {
        return ReadableTable(TableOfKept(kept.text));
    }
    return kept.form == form::kAuthor ? TextOfNotes(kept.text) : kept.text;
}

std::string ReadableFile(std::string_view form, std::string_view bytes) {
    if (form == form::kAuthor) {
        return TextOfNotes(bytes);
    }
    const std::string lines = TextOfBytes(bytes);
    return form == form::kEditTable ? ReadableTable(ReadTable(lines).content) : lines;
}

}  // namespace quenloft
