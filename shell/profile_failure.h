// What the user hears where settings cannot be kept.
#pragma once

#include <QObject>
#include <string>

namespace quenloft {

class Dialogs;

/// Several windows write their settings when the program ends; one message tells of all of them.
class ProfileFailure : public QObject {
  public:
    explicit ProfileFailure(Dialogs& dialogs) : dialogs_(dialogs) {}

    /// `sentence` names file and cause, without its stop. Says nothing more before the event loop
    /// has had a turn.
    void Tell(const std::string& sentence);

  private:
    Dialogs& dialogs_;
    bool isTold_ = false;
};

}  // namespace quenloft
