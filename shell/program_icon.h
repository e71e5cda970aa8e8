#pragma once

#include <QIcon>

namespace quenloft {

/// The program's picture in title bars and task lists: a die that shows a five.
QIcon ProgramIcon();

}  // namespace quenloft
