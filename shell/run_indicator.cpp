#include "shell/run_indicator.h"

#include <QAction>
#include <QStatusBar>

namespace quenloft {
namespace {

// Shorter runs would only make the status bar flicker.
constexpr int kMillisecondsUntilBar = 500;
constexpr int kBarWidth = 120;

}  // namespace

RunIndicator::RunIndicator(QAction& abortCommand, QStatusBar& statusBar)
    : abortCommand_(abortCommand),
      lblRunning_(new QLabel(tr("Running. Esc or \"Abort Running Processes!\" stops it."))),
      barRunning_(new QProgressBar) {
    lblRunning_->setObjectName(QStringLiteral("lblRunning"));
    barRunning_->setObjectName(QStringLiteral("barRunning"));
    barRunning_->setAccessibleName(tr("A run is going on"));
    barRunning_->setRange(0, 0);
    barRunning_->setTextVisible(false);
    barRunning_->setMaximumWidth(kBarWidth);
    statusBar.addWidget(barRunning_);
    statusBar.addWidget(lblRunning_);
    untilBar_.setSingleShot(true);
    connect(&untilBar_, &QTimer::timeout, this, &RunIndicator::ShowBar);
    Refresh();
}

void RunIndicator::Begin() {
    running_ = true;
    untilBar_.start(kMillisecondsUntilBar);
    Refresh();
}

void RunIndicator::End() {
    running_ = false;
    isLong_ = false;
    untilBar_.stop();
    Refresh();
}

void RunIndicator::ShowBar() {
    isLong_ = true;
    Refresh();
}

void RunIndicator::Refresh() {
    abortCommand_.setEnabled(running_);
    abortCommand_.setVisible(running_);
    lblRunning_->setVisible(isLong_);
    barRunning_->setVisible(isLong_);
}

}  // namespace quenloft
