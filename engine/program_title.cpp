#include "engine/program_title.h"

#include "engine/version.h"

namespace quenloft {

std::string ApplicationTitle() { return "Quenloft"; }

std::string ProgramVersion() { return QUENLOFT_VERSION; }

std::string ProgramTitle() { return ApplicationTitle() + " " + ProgramVersion(); }

}  // namespace quenloft
