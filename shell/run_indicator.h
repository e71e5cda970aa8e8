// Shows that a run is going on: the abort command at once, a moving bar after half a second.
#pragma once

#include <QLabel>
#include <QProgressBar>
#include <QTimer>

class QAction;
class QStatusBar;

namespace quenloft {

class RunIndicator : public QObject {
    Q_OBJECT

  public:
    /// Both outlive this object. The abort command begins hidden and disabled.
    RunIndicator(QAction& abortCommand, QStatusBar& statusBar);

    void Begin();
    void End();
    bool IsRunning() const { return running_; }

  private:
    void ShowBar();
    void Refresh();

    QAction& abortCommand_;
    QLabel* lblRunning_;
    QProgressBar* barRunning_;
    QTimer untilBar_;
    bool running_ = false;
    bool isLong_ = false;
};

}  // namespace quenloft
