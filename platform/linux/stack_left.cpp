#include "platform/linux/stack_left.h"

#include <cstdint>
#include <pthread.h>

namespace quenloft {

namespace {

/// Assumed where the end of the stack cannot be told: a quarter of the usual stack.
constexpr std::size_t kUsuallyLeft = std::size_t{2} << 20;

/// The lowest address of the thread's stack, 0 where it cannot be told (the system
/// tells it in /proc, which a sandbox may lack). Reading it is slow.
std::uintptr_t LowestAddress() {
    pthread_attr_t attributes;
    if (pthread_getattr_np(pthread_self(), &attributes) != 0) {
        return 0;
    }
    void* lowest = nullptr;
    std::size_t size = 0;
    pthread_attr_getstack(&attributes, &lowest, &size);
    pthread_attr_destroy(&attributes);
    return reinterpret_cast<std::uintptr_t>(lowest);
}

}  // namespace

std::size_t StackBytesLeft() {
    thread_local const std::uintptr_t lowest = LowestAddress();
    const auto here = reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
    return lowest != 0 && here > lowest ? here - lowest : kUsuallyLeft;
}

}  // namespace quenloft
