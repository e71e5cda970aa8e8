#include "platform/linux/stack_left.h"

#include <cstdint>
#include <pthread.h>

namespace quenloft {

std::size_t StackBytesLeft() {
    pthread_attr_t attributes;
    if (pthread_getattr_np(pthread_self(), &attributes) != 0) {
        return 0;
    }
    void* lowest = nullptr;
    std::size_t size = 0;
    pthread_attr_getstack(&attributes, &lowest, &size);
    pthread_attr_destroy(&attributes);
    const auto here = reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
    const auto end = reinterpret_cast<std::uintptr_t>(lowest);
    return here > end ? here - end : 0;
}

}  // namespace quenloft
