#include "engine/limits.h"

#include "engine/failure.h"

namespace quenloft {

void CheckOutputSize(std::size_t size) {
    if (size > kLargestOutput) {
        throw RunStopped("its text grew past 16 MiB");
    }
}

}  // namespace quenloft
