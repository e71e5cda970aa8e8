// The sample library that an installed program comes with, and the first start of such a program.
#pragma once

#include <string>

namespace quenloft {

struct ServiceSet;

/// Where the profile names no library yet: offers to copy `sharedFolder`/library into a folder of
/// the user's choice, and makes the copy, or else the sample itself, the library. Does nothing for
/// an empty `sharedFolder`.
void OfferSampleLibrary(const ServiceSet& services, const std::string& sharedFolder);

}  // namespace quenloft
