#include "platform/qt/qt_dialogs.h"

#include <QApplication>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QTimer>

#include "engine/program_title.h"
#include "platform/qt/qt_file_filter.h"
#include "platform/qt/qt_text.h"

namespace quenloft {
namespace {

// Longer texts go into a box that scrolls: a label of that size would leave the screen.
constexpr qsizetype kLongestLabel = 1500;
constexpr qsizetype kMostLabelLines = 25;
constexpr qsizetype kWidestLabel = 80;

constexpr int kMillisecondsBetweenLooks = 50;

// No window is active while the program is in the background or has just lost the focus.
QWidget* DialogParent() {
    if (QWidget* modal = QApplication::activeModalWidget()) {
        return modal;
    }
    if (QWidget* active = QApplication::activeWindow()) {
        return active;
    }
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->windowType() == Qt::Window) {
            return window;
        }
    }
    return nullptr;
}

QString WithPlainLineEnds(const std::string& text) {
    return ToQt(text).replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

/// What a label shows of `text`.
QString LabelText(const QString& text) {
    const QString head = text.section(u'\n', 0, kMostLabelLines - 1).left(kLongestLabel);
    return head.size() == text.size() ? text : head + QStringLiteral(" …");
}

void SetBoxText(QMessageBox& box, const std::string& text) {
    const QString whole = WithPlainLineEnds(text);
    box.setTextFormat(Qt::PlainText);
    box.setText(LabelText(whole));
    if (box.text() != whole) {
        box.setDetailedText(whole);
    }
}

QMessageBox::StandardButton ShowBox(const std::string& text, QMessageBox::Icon icon,
                                    QMessageBox::StandardButtons buttons) {
    QMessageBox box(icon, ToQt(ProgramTitle()), QString(), buttons, DialogParent());
    SetBoxText(box, text);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

Answer AnswerOf(int button) {
    return button == QMessageBox::Yes  ? Answer::Yes
           : button == QMessageBox::No ? Answer::No
                                       : Answer::Cancel;
}

/// Escape and the box's close button are no answer; by itself a box of these two takes them for No.
class YesNoBox : public QMessageBox {
  public:
    using QMessageBox::QMessageBox;

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->matches(QKeySequence::Cancel)) {
            done(QMessageBox::Cancel);
        } else {
            QMessageBox::keyPressEvent(event);
        }
    }
    void closeEvent(QCloseEvent* /*event*/) override { done(QMessageBox::Cancel); }
};

/// As QDialog::exec, but the other windows stay usable; rejected once `givenUp` says true.
int ExecBeside(QDialog& dialog, const GivenUp& givenUp) {
    if (givenUp()) {
        return QDialog::Rejected;
    }
    QEventLoop untilDone;
    QObject::connect(&dialog, &QDialog::finished, &untilDone, &QEventLoop::exit);
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &dialog, [&dialog, &givenUp] {
        if (givenUp()) {
            dialog.reject();
        }
    });
    look.start(kMillisecondsBetweenLooks);
    dialog.setModal(false);  // Message boxes are modal from the beginning.
    dialog.show();
    return untilDone.exec();
}

void SetUp(QInputDialog& dialog, const std::string& title, const std::string& prompt,
           const std::string& defaultText) {
    dialog.setWindowTitle(ToQt(title.empty() ? ProgramTitle() : title));
    dialog.setLabelText(LabelText(WithPlainLineEnds(prompt)));
    for (QLabel* label : dialog.findChildren<QLabel*>()) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(label->text().size() > kWidestLabel);  // By themselves only boxes wrap.
    }
    dialog.setTextValue(ToQt(defaultText));
}

std::string ChosenFile(const QFileDialog& dialog) {
    return QFile::encodeName(dialog.selectedFiles().value(0)).toStdString();
}

QString PathToQt(const std::string& nativePath) {
    return QFile::decodeName(QByteArray::fromStdString(nativePath));
}

}  // namespace

void QtDialogs::ShowMessage(const std::string& text, MessageIcon icon) {
    const QMessageBox::Icon shown = icon == MessageIcon::Warning       ? QMessageBox::Warning
                                    : icon == MessageIcon::Information ? QMessageBox::Information
                                                                       : QMessageBox::NoIcon;
    ShowBox(text, shown, QMessageBox::Ok);
}

Answer QtDialogs::AskYesNo(const std::string& text) {
    YesNoBox box(QMessageBox::Question, ToQt(ProgramTitle()), QString(),
                 QMessageBox::Yes | QMessageBox::No, DialogParent());
    SetBoxText(box, text);
    return AnswerOf(box.exec());
}

Answer QtDialogs::AskYesNoCancel(const std::string& text) {
    return AnswerOf(ShowBox(text, QMessageBox::Question,
                            QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel));
}

std::optional<std::string> QtDialogs::AskText(const std::string& prompt,
                                              const std::string& defaultText,
                                              const std::string& title) {
    QInputDialog dialog(DialogParent());
    SetUp(dialog, title, prompt, defaultText);
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return FromQt(dialog.textValue());
}

void QtDialogs::ShowMessageOfRun(const std::string& text, const GivenUp& givenUp) {
    QMessageBox box(QMessageBox::NoIcon, ToQt(ProgramTitle()), QString(), QMessageBox::Ok,
                    DialogParent());
    SetBoxText(box, text);
    ExecBeside(box, givenUp);
}

std::optional<std::string> QtDialogs::AskTextOfRun(const std::string& prompt,
                                                   const GivenUp& givenUp) {
    QInputDialog dialog(DialogParent());
    SetUp(dialog, {}, prompt, {});
    if (ExecBeside(dialog, givenUp) != QDialog::Accepted) {
        return std::nullopt;
    }
    return FromQt(dialog.textValue());
}

std::optional<std::string> QtDialogs::ChooseFileToOpen(const std::string& filter,
                                                       const std::string& folder) {
    QFileDialog dialog(DialogParent(), QStringLiteral("Open"), PathToQt(folder));
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters(ToNameFilters(filter));
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return ChosenFile(dialog);
}

std::optional<std::string> QtDialogs::ChooseFileToSave(const std::string& filter,
                                                       const std::string& path, int filterIndex) {
    const QFileInfo begin(PathToQt(path));
    const bool isFolder = begin.isDir();
    QFileDialog dialog(DialogParent(), QStringLiteral("Save As"),
                       isFolder ? begin.filePath() : begin.path());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    const QStringList filters = ToNameFilters(filter);
    dialog.setNameFilters(filters);
    dialog.selectNameFilter(filters.value(filterIndex - 1));
    if (!isFolder) {
        dialog.selectFile(begin.fileName());
    }
    // The dialog completes a name before it asks about an existing file, but does not by itself
    // complete it for the filter that the user changed to.
    dialog.setDefaultSuffix(SuffixOf(dialog.selectedNameFilter()));
    QObject::connect(
        &dialog, &QFileDialog::filterSelected, &dialog,
        [&dialog](const QString& chosen) { dialog.setDefaultSuffix(SuffixOf(chosen)); });
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return ChosenFile(dialog);
}

std::optional<std::string> QtDialogs::ChooseFolder(const std::string& title,
                                                   const std::string& folder) {
    QFileDialog dialog(DialogParent(), ToQt(title), PathToQt(folder));
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return ChosenFile(dialog);
}

std::optional<FontChoice> QtDialogs::ChooseFont(const FontChoice& initial) {
    QFont font;
    if (!initial.name.empty()) {
        font.setFamily(ToQt(initial.name));
    }
    if (initial.size > 0) {
        font.setPointSizeF(initial.size);
    }
    font.setBold(initial.bold);
    font.setItalic(initial.italic);
    QFontDialog dialog(font, DialogParent());
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    const QFont chosen = dialog.selectedFont();
    return FontChoice{FromQt(chosen.family()), chosen.pointSizeF(), chosen.bold(), chosen.italic()};
}

}  // namespace quenloft
