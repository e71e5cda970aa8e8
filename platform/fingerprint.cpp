#include "platform/fingerprint.h"

#include <cstdint>

namespace quenloft {

std::string Fingerprint(std::string_view bytes) {
    constexpr std::uint64_t kOffset = 14695981039346656037U;
    constexpr std::uint64_t kPrime = 1099511628211U;
    std::uint64_t hash = kOffset;
    for (const char byte : bytes) {
        hash = (hash ^ static_cast<unsigned char>(byte)) * kPrime;
    }
    return std::to_string(bytes.size()) + "-" + std::to_string(hash);
}

}  // namespace quenloft
