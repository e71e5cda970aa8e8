#include "author/format_bar.h"

#include <QComboBox>
#include <QDoubleValidator>
#include <QFocusEvent>
#include <QLineEdit>
#include <QMenu>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTextBlock>

#include "author/format_icons.h"
#include "author/qt_formats.h"
#include "author/rich_text_box.h"
#include "ui_format_bar.h"

namespace quenloft {
namespace {

constexpr double kSmallestPoints = 1;
constexpr double kLargestPoints = kLargestHalfPoints / 2.0;

struct NamedColor {
    const char* name;
    Color color;
};
// Of middle lightness: to be read on white paper as well as on a dark screen.
constexpr NamedColor kColors[] = {
    {QT_TRANSLATE_NOOP("quenloft::FormatBar", "&Automatic"), std::nullopt},
    {QT_TRANSLATE_NOOP("quenloft::FormatBar", "&Red"), 0xD13438},
    {QT_TRANSLATE_NOOP("quenloft::FormatBar", "&Orange"), 0xCA5010},
    {QT_TRANSLATE_NOOP("quenloft::FormatBar", "Go&ld"), 0xB8860B},
    {QT_TRANSLATE_NOOP("quenloft::FormatBar", "&Green"), 0x2E8B3D},
    {QT_TRANSLATE_NOOP("quenloft::FormatBar", "&Teal"), 0x038387},
    {QT_TRANSLATE_NOOP("quenloft::FormatBar", "&Blue"), 0x2B79D7},
    {QT_TRANSLATE_NOOP("quenloft::FormatBar", "&Purple"), 0x8764B8},
    {QT_TRANSLATE_NOOP("quenloft::FormatBar", "Pin&k"), 0xC239B3},
    {QT_TRANSLATE_NOOP("quenloft::FormatBar", "Bro&wn"), 0x8E562E},
    {QT_TRANSLATE_NOOP("quenloft::FormatBar", "Gre&y"), 0x7A7574},
};

Color ColorOf(const QTextCharFormat& format) {
    const QBrush brush = format.foreground();
    return brush.style() == Qt::SolidPattern ? Color(brush.color().rgb() & 0xFFFFFFU) : Color();
}

/// Sets the index too: else leaving the box would count as choosing the item of this name.
void ShowIn(QComboBox& box, const QString& text) {
    box.setCurrentIndex(box.findText(text));
    box.setEditText(text);
}

/// Whether the user remains at the control: its list opened, or another window came up.
bool IsInterruption(const QFocusEvent& focusOut) {
    return focusOut.reason() == Qt::PopupFocusReason ||
           focusOut.reason() == Qt::ActiveWindowFocusReason;
}

bool IsNumbered(ListKind kind) { return kind != ListKind::None && kind != ListKind::Bullet; }

}  // namespace

FormatBar::FormatBar(QWidget* parent) : QWidget(parent), ui_(std::make_unique<Ui::FormatBar>()) {
    ui_->setupUi(this);
    FillSizes();
    FillColors();
    DrawIcons();
}

FormatBar::~FormatBar() = default;

void FormatBar::Attach(RichTextBox& box) {
    box_ = &box;
    connect(ui_->cmbFont, &QComboBox::activated, this, &FormatBar::ChooseFont);
    connect(ui_->cmbFont->lineEdit(), &QLineEdit::returnPressed, this, &FormatBar::EnterFont);
    connect(ui_->cmbSize, &QComboBox::activated, this, &FormatBar::EnterSize);
    connect(ui_->cmbSize->lineEdit(), &QLineEdit::returnPressed, this, &FormatBar::EnterSize);
    for (QComboBox* combo : {static_cast<QComboBox*>(ui_->cmbFont), ui_->cmbSize}) {
        connect(combo->lineEdit(), &QLineEdit::textEdited, this,
                [this, combo] { typedInto_ = combo; });
        combo->installEventFilter(this);
    }
    connect(ui_->btnBold, &QToolButton::clicked, this, &FormatBar::SwitchBold);
    connect(ui_->btnItalic, &QToolButton::clicked, this, &FormatBar::SwitchItalic);
    connect(ui_->btnUnderline, &QToolButton::clicked, this, &FormatBar::SwitchUnderline);
    connect(ui_->btnStrike, &QToolButton::clicked, this, &FormatBar::SwitchStrike);
    for (const AlignmentButton& entry : AlignmentButtons()) {
        connect(entry.button, &QToolButton::clicked, this,
                [this, alignment = entry.alignment] { SetAlignment(alignment); });
    }
    connect(ui_->btnBullets, &QToolButton::clicked, this, &FormatBar::SwitchBullets);
    connect(ui_->btnNumbers, &QToolButton::clicked, this, &FormatBar::SwitchNumbers);
    connect(ui_->btnUndo, &QToolButton::clicked, box_, &QTextEdit::undo);
    connect(ui_->btnRedo, &QToolButton::clicked, box_, &QTextEdit::redo);
    connect(box_, &QTextEdit::currentCharFormatChanged, this, &FormatBar::Refresh);
    connect(box_, &QTextEdit::cursorPositionChanged, this, &FormatBar::Refresh);
    connect(box_, &QTextEdit::textChanged, this, &FormatBar::Refresh);
    connect(box_, &QTextEdit::undoAvailable, this, &FormatBar::Refresh);
    connect(box_, &QTextEdit::redoAvailable, this, &FormatBar::Refresh);
    const std::pair<const char*, QToolButton*> shortcuts[] = {
        {"Ctrl+B", ui_->btnBold}, {"Ctrl+I", ui_->btnItalic}, {"Ctrl+U", ui_->btnUnderline}};
    for (const auto& [keys, button] : shortcuts) {
        new QShortcut(QKeySequence(QLatin1String(keys)), parentWidget(), button,
                      &QToolButton::click, Qt::WidgetWithChildrenShortcut);
    }
    Refresh();
}

void FormatBar::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        FillColors();
        DrawIcons();
        if (box_) {
            Refresh();
        }
    }
}

bool FormatBar::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut && !IsInterruption(*static_cast<QFocusEvent*>(event))) {
        // The focus goes where the user sends it, whatever is done here.
        if (watched == ui_->cmbFont && typedInto_ == ui_->cmbFont) {
            ChooseFont();
        } else if (watched == ui_->cmbSize && typedInto_ == ui_->cmbSize) {
            ChooseSize();
        } else if (watched == ui_->cmbFont || watched == ui_->cmbSize) {
            Refresh();
        }
    }
    return QWidget::eventFilter(watched, event);
}

void FormatBar::ChooseFont() {
    typedInto_ = nullptr;
    const QString typed = ui_->cmbFont->currentText().trimmed();
    if (!typed.isEmpty()) {
        const int known = ui_->cmbFont->findText(typed, Qt::MatchFixedString);
        QTextCharFormat change;
        change.setFontFamilies({known >= 0 ? ui_->cmbFont->itemText(known) : typed});
        box_->ChangeFormat(change);
    }
    Refresh();
}

void FormatBar::EnterFont() {
    ChooseFont();
    box_->setFocus();
}

void FormatBar::ChooseSize() {
    typedInto_ = nullptr;
    bool isNumber = false;
    const double points = ui_->cmbSize->currentText().toDouble(&isNumber);
    if (isNumber && points >= kSmallestPoints && points <= kLargestPoints) {
        QTextCharFormat change;
        change.setFontPointSize(points);
        box_->ChangeFormat(change);
    }
    Refresh();
}

void FormatBar::EnterSize() {
    ChooseSize();
    box_->setFocus();
}

void FormatBar::SwitchBold(bool on) {
    QTextCharFormat change;
    change.setFontWeight(on ? QFont::Bold : QFont::Normal);
    Change(change);
}

void FormatBar::SwitchItalic(bool on) {
    QTextCharFormat change;
    change.setFontItalic(on);
    Change(change);
}

void FormatBar::SwitchUnderline(bool on) {
    QTextCharFormat change;
    change.setFontUnderline(on);
    Change(change);
}

void FormatBar::SwitchStrike(bool on) {
    QTextCharFormat change;
    change.setFontStrikeOut(on);
    Change(change);
}

void FormatBar::SwitchBullets(bool on) { ChangeList(on ? ListKind::Bullet : ListKind::None); }

void FormatBar::SwitchNumbers(bool on) { ChangeList(on ? ListKind::Decimal : ListKind::None); }

void FormatBar::Refresh() {
    const QTextCharFormat format = box_->currentCharFormat();
    // With the box's own font where the text names none.
    const QFont font = format.font().resolve(box_->document()->defaultFont());
    const QSignalBlocker quiet(ui_->cmbFont);
    if (typedInto_ != ui_->cmbFont) {
        ui_->cmbFont->setCurrentFont(font);
        ShowIn(*ui_->cmbFont, font.families().value(0, font.family()));
    }
    if (typedInto_ != ui_->cmbSize) {
        ShowIn(*ui_->cmbSize, QString::number(font.pointSizeF()));
    }
    ui_->btnBold->setChecked(font.weight() >= QFont::DemiBold);
    ui_->btnItalic->setChecked(font.italic());
    ui_->btnUnderline->setChecked(format.fontUnderline());
    ui_->btnStrike->setChecked(font.strikeOut());
    ui_->btnColor->setIcon(ColorIcon(ColorOf(format), palette()));
    const Qt::Alignment alignment = box_->alignment();
    ui_->btnCenter->setChecked(alignment.testFlag(Qt::AlignHCenter));
    ui_->btnRight->setChecked(alignment.testFlag(Qt::AlignRight));
    ui_->btnJustify->setChecked(alignment.testFlag(Qt::AlignJustify));
    ui_->btnLeft->setChecked(!ui_->btnCenter->isChecked() && !ui_->btnRight->isChecked() &&
                             !ui_->btnJustify->isChecked());
    // Where a change of the list would begin.
    const QTextBlock first = box_->document()->findBlock(box_->textCursor().selectionStart());
    const ListKind list = ListItemOf(first).kind;
    ui_->btnBullets->setChecked(list == ListKind::Bullet);
    ui_->btnNumbers->setChecked(IsNumbered(list));
    ui_->btnUndo->setEnabled(box_->document()->isUndoAvailable());
    ui_->btnRedo->setEnabled(box_->document()->isRedoAvailable());
}

void FormatBar::FillSizes() {
    for (const int points : {8, 9, 10, 11, 12, 14, 16, 18, 20, 24, 28, 36, 48, 72}) {
        ui_->cmbSize->addItem(QString::number(points));
    }
    auto* validator = new QDoubleValidator(kSmallestPoints, kLargestPoints, 1, this);
    validator->setLocale(QLocale::c());
    validator->setNotation(QDoubleValidator::StandardNotation);
    ui_->cmbSize->setValidator(validator);
}

void FormatBar::FillColors() {
    auto* menu = ui_->btnColor->menu();
    if (!menu) {
        menu = new QMenu(ui_->btnColor);
        ui_->btnColor->setMenu(menu);
        ui_->btnColor->setPopupMode(QToolButton::InstantPopup);
    }
    menu->clear();
    for (const NamedColor& entry : kColors) {
        menu->addAction(SwatchIcon(entry.color, palette()), tr(entry.name), this,
                        [this, color = entry.color] {
                            box_->ChangeColor(color);
                            box_->setFocus();
                            Refresh();
                        });
    }
}

void FormatBar::DrawIcons() {
    QFont bold;
    bold.setBold(true);
    QFont italic(QStringLiteral("Serif"));
    italic.setItalic(true);
    QFont underlined;
    underlined.setUnderline(true);
    QFont struckOut;
    struckOut.setStrikeOut(true);
    ui_->btnBold->setIcon(LetterIcon(u'B', bold, palette()));
    ui_->btnItalic->setIcon(LetterIcon(u'I', italic, palette()));
    ui_->btnUnderline->setIcon(LetterIcon(u'U', underlined, palette()));
    ui_->btnStrike->setIcon(LetterIcon(u'S', struckOut, palette()));
    ui_->btnColor->setIcon(ColorIcon({}, palette()));
    for (const AlignmentButton& entry : AlignmentButtons()) {
        entry.button->setIcon(AlignmentIcon(entry.alignment, palette()));
    }
    ui_->btnBullets->setIcon(BulletsIcon(palette()));
    ui_->btnNumbers->setIcon(NumbersIcon(palette()));
    ui_->btnUndo->setIcon(UndoIcon(palette()));
    ui_->btnRedo->setIcon(RedoIcon(palette()));
}

void FormatBar::SetAlignment(Alignment alignment) {
    constexpr Qt::AlignmentFlag kFlags[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight,
                                            Qt::AlignJustify};
    box_->setAlignment(kFlags[static_cast<std::size_t>(alignment)]);
    box_->setFocus();
    Refresh();
}

void FormatBar::Change(const QTextCharFormat& change) {
    box_->ChangeFormat(change);
    box_->setFocus();
    Refresh();
}

void FormatBar::ChangeList(ListKind kind) {
    box_->ChangeList(kind);
    box_->setFocus();
    Refresh();
}

std::vector<FormatBar::AlignmentButton> FormatBar::AlignmentButtons() const {
    return {{ui_->btnLeft, Alignment::Left},
            {ui_->btnCenter, Alignment::Center},
            {ui_->btnRight, Alignment::Right},
            {ui_->btnJustify, Alignment::Justify}};
}

}  // namespace quenloft
