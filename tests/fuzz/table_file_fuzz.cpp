// A table file: title, header, and the entry for a roll, which two ways of reading must agree on.
#include "engine/failure.h"
#include "engine/table_file.h"
#include "tests/fuzz/fuzz.h"
#include "tests/fuzz/fuzzed_engine.h"

void quenloft::Fuzz(std::string_view input) {
    MemoryFiles files;
    files.Put("a.tbl", input);
    ReadTitle(*files.ReadLines("a.tbl"));
    const auto entry = [&](auto read, std::int32_t roll) -> std::string {
        OpenFileCache cache;
        const auto file = files.OpenText("a.tbl");
        OpenedFile opened(cache, "a.tbl", *file);
        try {
            TableHeader header;
            ReadHeader(opened.Handle(), header);
            return read(opened.Handle(), roll, header.total);
        } catch (const Failure& failure) {
            return failure.what();
        }
    };
    for (const std::int32_t roll : {-1, 0, 1, 2, 7, 1000}) {
        FUZZ_CHECK(entry(ReadEntry, roll) == entry(ReadEntryByScan, roll));
    }
    FuzzedEngine engine;
    engine.files.Put("a.tbl", input);
    engine.Roll("a.tbl");
}
