// The marks of an entry, with other tables and a script to refer to.
#include "tests/fuzz/fuzz.h"
#include "tests/fuzz/fuzzed_engine.h"

void quenloft::Fuzz(std::string_view input) {
    static FuzzedEngine engine;
    engine.files.Put("a.tbl",
                     "T\xC2\xA4"
                     "1\r\n1\xC2\xA7" +
                         std::string(input));
    engine.files.Put("b.tbl",
                     "B\xC2\xA4"
                     "2??b=b+1??\r\n1\xC2\xA7one\r\n2\xC2\xA7two #a#\r\n");
    engine.files.Put("s.spt", "x=INC1\r\nIF x>3\r\nEND:\r\nEND IF\r\n#b#\r\n");
    engine.Roll("a.tbl");
}
