// What the fuzz targets share: the input as text, and checks that end the program.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

/// Ends the program, which the fuzzer takes for a find, where `condition` does not hold.
#define FUZZ_CHECK(condition)                                                    \
    do {                                                                         \
        if (!(condition)) {                                                      \
            std::fprintf(stderr, "%s:%d: %s\n", __FILE__, __LINE__, #condition); \
            std::abort();                                                        \
        }                                                                        \
    } while (false)

namespace quenloft {

/// The one function of a target.
void Fuzz(std::string_view input);

}  // namespace quenloft

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    quenloft::Fuzz({reinterpret_cast<const char*>(data), size});
    return 0;
}
