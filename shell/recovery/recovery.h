// The unsaved texts of this start of the program and of earlier ones.
#pragma once

#include <QMdiArea>
#include <QObject>
#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "shell/recovery/left_texts.h"
#include "shell/recovery/recovery_watch.h"
#include "shell/recovery/recovery_writer.h"

namespace quenloft {

class Dialogs;
class Workspace;

/// How often windows are looked at. Users are promised that no more than 15 seconds of typing are
/// lost, and 10 after it stopped: that leaves a slow disk two seconds.
inline constexpr std::chrono::seconds kRecoveryInterval{8};

/// Keeps what is typed from now on, and gives back what was kept when the program did not end as it
/// should. A normal end leaves nothing but what the user did not decide upon.
class Recovery : public QObject {
    Q_OBJECT

  public:
    /// Takes over what earlier starts left in `stateFolder` (native; empty where there is none).
    /// Both outlive this object.
    Recovery(const std::string& stateFolder, Dialogs& dialogs);
    ~Recovery() override;

    /// From now on the windows in `area` are watched.
    void Begin(const QMdiArea& area, std::chrono::milliseconds interval = kRecoveryInterval);

    const std::vector<LeftText>& Left() const { return left_.All(); }
    const std::vector<std::string>& SetAside() const { return left_.SetAside(); }
    /// Tells the user of files that were found and cannot be read; does nothing where there are
    /// none.
    void TellSetAside();

    /// The one that `file` keeps; null where there is none.
    const LeftText* Find(const std::string& file) const;
    /// Opens the window that `left` stood in and puts it back; the text is kept anew before its
    /// file goes. Where the program has no such window it tells the user, and the text stays.
    void Restore(const LeftText& left, Workspace& workspace);
    void RestoreAll(Workspace& workspace);
    /// It is gone then.
    void Discard(const LeftText& left);

    /// Until all that is to be kept is on the disk.
    void Wait() { writer_.Wait(); }

  signals:
    void LeftChanged();

  private:
    void TellFailure(const std::string& sentence);

    Dialogs& dialogs_;
    LeftTexts left_;
    RecoveryWriter writer_;
    std::unique_ptr<RecoveryWatch> watch_;
};

}  // namespace quenloft
