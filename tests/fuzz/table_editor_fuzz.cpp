// Any file through the table editor: what it would save, it would read the same again.
#include "editors/shared/text_form.h"
#include "editors/table/table_reading.h"
#include "editors/table/table_writing.h"
#include "tests/fuzz/fuzz.h"

void quenloft::Fuzz(std::string_view input) {
    const TableContent content = ReadTable(TextOfBytes(input)).content;
    WeightSums sums;
    sums.Replace(0, 0, content.rows);
    if (FirstFault(content, sums) || !ZeroRows(content).empty()) {
        return;
    }
    const std::string text = TableFileText(content, sums);
    const TableContent again = ReadTable(TextOfBytes(text)).content;
    WeightSums sumsAgain;
    sumsAgain.Replace(0, 0, again.rows);
    FUZZ_CHECK(!FirstFault(again, sumsAgain));
    FUZZ_CHECK(TableFileText(again, sumsAgain) == text);
}
