// A child window that records what is asked of it.
#pragma once

#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>
#include <functional>
#include <string>
#include <vector>

#include "shell/child_window.h"
#include "shell/main_window.h"
#include "shell/text_box.h"

namespace quenloft {

class RecordingWindow : public ChildWindow {
    Q_OBJECT

  public:
    RecordingWindow(Workspace& workspace, const char* formName, const QString& caption = "Window",
                    TwipsPoint place = {1500, 3000})
        : ChildWindow(workspace, formName, caption, place) {
        auto* column = new QVBoxLayout(this);
        column->addWidget(txtOut);
        column->addWidget(button);
    }
    ~RecordingWindow() override {
        if (onDestroyed) {
            onDestroyed();
        }
    }

    std::string Export() override { return exported; }
    void PrintContent() override { asked.emplace_back("print content"); }
    void Copy() override { asked.emplace_back("copy"); }
    void Cut() override { asked.emplace_back("cut"); }
    void Paste() override { asked.emplace_back("paste"); }
    void OpenFile() override { asked.emplace_back("open file"); }
    void NewFile() override { asked.emplace_back("new file"); }
    void Load(const std::string& path) override { asked.push_back("load " + path); }
    void Run() override {
        asked.emplace_back("run");
        if (onRun) {
            onRun();
        }
    }
    QPlainTextEdit* OutputBoxOf(const QWidget& control) override {
        return &control == button ? txtOut : nullptr;
    }
    bool AskToSave() override {
        asked.emplace_back("ask to save");
        return maySave;
    }
    void SaveState() override { asked.emplace_back("save state"); }

    TextBox* txtOut = new TextBox;
    QPushButton* button = new QPushButton("Generate");
    std::string exported;
    bool maySave = true;
    std::vector<std::string> asked;
    std::function<void()> onRun;
    std::function<void()> onDestroyed;
};

/// The kind of window `formName`; the one made last is in `made`, of which none may outlive it.
inline WindowKind Recorder(const char* formName, QPointer<RecordingWindow>& made) {
    return {formName, Instances::Many, [formName, &made](Workspace& workspace) {
                return made = new RecordingWindow(workspace, formName);
            }};
}

}  // namespace quenloft
