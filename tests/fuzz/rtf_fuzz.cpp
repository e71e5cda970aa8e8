// Rich text: what was read once is written and read the same.
#include "author/rtf_reader.h"
#include "author/rtf_writer.h"
#include "tests/fuzz/fuzz.h"

void quenloft::Fuzz(std::string_view input) {
    const RtfContent content = ReadRtf(input);
    // Once around a missing font and size have become the document's.
    const RichText text = ReadRtf(WriteRtf(content.text)).text;
    FUZZ_CHECK(text.paragraphs.size() == content.text.paragraphs.size());
    FUZZ_CHECK(ReadRtf(WriteRtf(text)).text == text);
}
