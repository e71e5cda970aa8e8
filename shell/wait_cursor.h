// The hourglass, for as long as nothing else can be done.
#pragma once

#include <QGuiApplication>

namespace quenloft {

class WaitCursor {
  public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

}  // namespace quenloft
