// A script, which may call itself and a table that calls it.
#include "tests/fuzz/fuzz.h"
#include "tests/fuzz/fuzzed_engine.h"

void quenloft::Fuzz(std::string_view input) {
    static FuzzedEngine engine;
    engine.files.Put("s.spt", input);
    engine.files.Put("a.tbl",
                     "T\xC2\xA4"
                     "1\r\n1\xC2\xA7#s.spt#\r\n");
    engine.Run("s.spt");
}
