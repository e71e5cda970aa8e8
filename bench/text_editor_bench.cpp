// A script of 10 MB in the text editor: how long it takes from the path to the painted window, with
// a bare QPlainTextEdit that gets the same text as the floor (the goal is 1.5 times that), and one
// typed letter with colouring on and everything painted (the goal is 16 ms); the same where all of
// 5 MB is one line.
#include <QApplication>
#include <QPlainTextEdit>
#include <QTest>
#include <QTextBlock>
#include <benchmark/benchmark.h>

#include "editors/text/code_box.h"
#include "editors/text/text_window.h"
#include "platform/qt/qt_text.h"
#include "shell/form_names.h"
#include "shell/main_window.h"
#include "tests/support/temp_program.h"

namespace quenloft {
namespace {

constexpr int kLines = 300'000;

std::string Script() {
    std::string text;
    for (int i = 0; i < kLines; ++i) {
        text += "The @2d6@ guards of ??town?? #names#\r\n";
    }
    return text;
}

std::string OneLine() {
    constexpr std::size_t kLetters = 5'000'000;
    std::string text;
    while (text.size() < kLetters) {
        text += "The @2d6@ guards of ??town?? #names# ";
    }
    return text;
}

/// The program around one editor.
class EditorOnScreen {
  public:
    explicit EditorOnScreen(const std::string& text = Script()) {
        program_.folder.Write("script.spt", text);
        window_.resize(kSize);
        window_.show();
    }

    frmEdit* Open() {
        auto* editor = qobject_cast<frmEdit*>(window_.Open(form::kEdit));
        editor->Load(program_.folder.Path("script.spt"));
        QApplication::processEvents();
        return editor;
    }

    static constexpr QSize kSize{1280, 800};

  private:
    TempProgram program_;
    frmMain window_{program_.Services(), {{form::kEdit, Instances::Many, [](Workspace& workspace) {
                                               return new frmEdit(workspace);
                                           }}}};
};

void OpenInBareBox(benchmark::State& state) {
    const QString text = ToQt(Script());
    for (auto _ : state) {
        QPlainTextEdit box;
        box.resize(EditorOnScreen::kSize);
        box.setLineWrapMode(QPlainTextEdit::NoWrap);
        box.show();
        box.setPlainText(text);
        QApplication::processEvents();
    }
}
BENCHMARK(OpenInBareBox)->Unit(benchmark::kMillisecond)->UseRealTime()->MinTime(3);

void OpenInEditor(benchmark::State& state) {
    EditorOnScreen screen;
    for (auto _ : state) {
        frmEdit* editor = screen.Open();
        editor->CloseUnasked();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}
BENCHMARK(OpenInEditor)->Unit(benchmark::kMillisecond)->UseRealTime()->MinTime(3);

void TypeLetters(benchmark::State& state, const std::string& text, double share) {
    EditorOnScreen screen(text);
    frmEdit* editor = screen.Open();
    auto* box = editor->findChild<CodeBox*>();
    const int last = box->document()->blockCount() - 1;
    box->setTextCursor(
        QTextCursor(box->document()->findBlockByNumber(static_cast<int>(last * share))));
    QApplication::processEvents();
    for (auto _ : state) {
        QTest::keyClick(box, Qt::Key_A);
        QApplication::processEvents();
    }
    editor->CloseUnasked();
}
BENCHMARK_CAPTURE(TypeLetters, InTheMiddle, Script(), 0.5)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(TypeLetters, AtTheEnd, Script(), 1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(TypeLetters, InOneLongLine, OneLine(), 0.5)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quenloft
