#include "author/author_window.h"

#include <QPointer>
#include <QShortcut>

#include "author/plain_text.h"
#include "author/rtf_writer.h"
#include "platform/clipboard.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "platform/printer.h"
#include "platform/qt/qt_text.h"
#include "platform/replacing.h"
#include "shell/font_settings.h"
#include "shell/form_names.h"
#include "shell/recovery/kept_text.h"
#include "shell/workspace.h"
#include "ui_author_window.h"

namespace quenloft {
namespace {

constexpr TwipsPoint kPlace{4950, 3090};
constexpr char kFilter[] = "Rich Text (*.rtf)|*.rtf|All files (*.*)|*.*";
constexpr char kSaveQuestion[] = "Data in Author Area is not saved, save now?";

}  // namespace

frmAuthor::frmAuthor(Workspace& workspace)
    : ChildWindow(workspace, form::kAuthor, tr("Author Area"), kPlace),
      ui_(std::make_unique<Ui::frmAuthor>()),
      file_(workspace.Services().files) {
    ui_->setupUi(this);
    workspace_.ApplyFontSettings(*ui_->rtfAuthor, kScriptEditorFont);
    ui_->barFormat->Attach(*ui_->rtfAuthor);
    connect(ui_->btnOpen, &QPushButton::clicked, this, &frmAuthor::OpenFile);
    connect(ui_->btnSave, &QPushButton::clicked, this, &frmAuthor::Save);
    connect(ui_->btnSaveAs, &QPushButton::clicked, this, &frmAuthor::SaveAs);
    connect(ui_->rtfAuthor, &RichTextBox::GotFocus, this, &frmAuthor::BecomeInsertionTarget);
    connect(ui_->rtfAuthor->document(), &QTextDocument::modificationChanged, this,
            &frmAuthor::Refresh);
    const auto context = Qt::WidgetWithChildrenShortcut;
    new QShortcut(QKeySequence(QStringLiteral("Ctrl+S")), this, this, &frmAuthor::Save, context);
    new QShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+S")), this, this, &frmAuthor::SaveAs,
                  context);
    Refresh();
    ui_->rtfAuthor->setFocus();
}

frmAuthor::~frmAuthor() = default;

QSize frmAuthor::OpeningSize(QSize area) const {
    constexpr QSize kComfortable(760, 520);
    return kComfortable.expandedTo(area * 0.5).expandedTo(sizeHint()).boundedTo(area);
}

void frmAuthor::OpenFile() {
    const QPointer<frmAuthor> self(this);
    if (!SaveFirst() || !self) {
        return;
    }
    const auto path = workspace_.Services().dialogs.ChooseFileToOpen(kFilter, StartOfDialogs());
    if (path && self) {
        Show(*path);
    }
}

void frmAuthor::Load(const std::string& path) {
    const QPointer<frmAuthor> self(this);
    if (SaveFirst() && self) {
        Show(path);
    }
}

void frmAuthor::PrintContent() {
    const ServiceSet& services = workspace_.Services();
    const QPointer<frmAuthor> self(this);
    if (!services.printer.ChoosePrinter() || !self) {
        return;
    }
    const std::string failure =
        services.printer.PrintHtml(FromQt(ui_->rtfAuthor->document()->toHtml()));
    if (!failure.empty()) {
        services.dialogs.ShowMessage(failure, MessageIcon::Warning);
    }
}

void frmAuthor::Copy() {
    if (focusWidget() == ui_->rtfAuthor && ui_->rtfAuthor->textCursor().hasSelection()) {
        workspace_.Services().clipboard.SetText(PlainTextOf(ui_->rtfAuthor->SelectedText()));
    }
}

void frmAuthor::Cut() {
    Copy();
    if (focusWidget() == ui_->rtfAuthor) {
        ui_->rtfAuthor->textCursor().removeSelectedText();
    }
}

void frmAuthor::Paste() {
    if (focusWidget() == ui_->rtfAuthor) {
        ui_->rtfAuthor->PasteText(ToQt(workspace_.Services().clipboard.GetText()));
    }
}

std::optional<UnsavedWork> frmAuthor::Unsaved() const {
    const QTextDocument& document = *ui_->rtfAuthor->document();
    if (!IsModified() || (document.isEmpty() && file_.Path().empty())) {
        return std::nullopt;
    }
    return UnsavedWork{file_.Path(), file_.Base(), static_cast<std::uint64_t>(document.revision()),
                       [this]() -> std::function<std::string()> {
                           return [text = ui_->rtfAuthor->Text()] { return WriteRtf(text); };
                       }};
}

void frmAuthor::PutBack(const KeptText& kept) {
    workspace_.Services().files.LookAgain();
    file_.Resume(kept.path, kept.base);
    ui_->rtfAuthor->SetText(ReadRtf(kept.text).text);
    ui_->rtfAuthor->document()->setModified(true);
    Refresh();
}

bool frmAuthor::AskToSave() {
    return !IsModified() || SaveOrGiveUp(kSaveQuestion, [this] { return Save(); });
}

bool frmAuthor::Save() { return file_.Path().empty() ? SaveAs() : WriteTo(file_.Path()); }

bool frmAuthor::SaveAs() {
    const QPointer<frmAuthor> self(this);
    const auto path = workspace_.Services().dialogs.ChooseFileToSave(
        kFilter, file_.Path().empty() ? StartOfDialogs() : file_.Path());
    return path && self && WriteTo(*path);
}

void frmAuthor::BecomeInsertionTarget() { workspace_.SetInsertionTarget(ui_->rtfAuthor); }

void frmAuthor::Refresh() {
    const std::string& path = file_.Path();
    QString title = tr("Author Area");
    if (!path.empty()) {
        // In a caption "[*]" is the place of the mark of change, and twice is the text.
        title += u' ' + ToQt(path.substr(path.rfind('/') + 1))
                            .replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
    }
    setWindowTitle(title + QLatin1String("[*]"));
    setWindowModified(IsModified());
}

bool frmAuthor::SaveFirst() {
    if (!IsModified()) {
        return true;
    }
    const Answer answer = workspace_.Services().dialogs.AskYesNo(kSaveQuestion);
    return answer == Answer::No || (answer == Answer::Yes && Save());
}

void frmAuthor::Show(const std::string& path) {
    const ServiceSet& services = workspace_.Services();
    services.files.LookAgain();
    try {
        ui_->rtfAuthor->SetText(file_.Read(path));
    } catch (const FileError& error) {
        services.dialogs.ShowMessage(std::string(error.what()) + ".", MessageIcon::Warning);
    }
    Refresh();
}

bool frmAuthor::MayWriteOver(const std::string& path) {
    const ServiceSet& services = workspace_.Services();
    if (path != file_.Path() && !MayReplace(services.files, services.dialogs, path)) {
        return false;
    }
    for (const std::string& question : file_.QuestionsBefore(path)) {
        if (services.dialogs.AskYesNo(question) != Answer::Yes) {
            return false;
        }
    }
    return true;
}

bool frmAuthor::WriteTo(const std::string& path) {
    const QPointer<frmAuthor> self(this);
    if (!MayWriteOver(path) || !self) {
        return false;
    }
    const ServiceSet& services = workspace_.Services();
    try {
        file_.Write(path, ui_->rtfAuthor->Text());
    } catch (const FileError& error) {
        services.dialogs.ShowMessage(std::string(error.what()) + ".", MessageIcon::Warning);
        return false;
    }
    ui_->rtfAuthor->document()->setModified(false);
    Refresh();
    return true;
}

bool frmAuthor::IsModified() const { return ui_->rtfAuthor->document()->isModified(); }

std::string frmAuthor::StartOfDialogs() const {
    FileSystem& files = workspace_.Services().files;
    const std::string& path = file_.Path();
    return path.empty() ? files.NativePath(files.CurrentDirectory())
                        : path.substr(0, path.rfind('/'));
}

}  // namespace quenloft
