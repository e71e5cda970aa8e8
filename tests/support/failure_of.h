// The words in which something fails.
#pragma once

#include <string>

#include "engine/failure.h"

namespace quenloft {

/// What the failure that `act` ends with says; "none" where it ends well.
template <typename Act>
std::string FailureOf(Act act) {
    try {
        act();
    } catch (const Failure& failure) {
        return failure.what();
    }
    return "none";
}

}  // namespace quenloft
