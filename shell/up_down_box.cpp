#include "shell/up_down_box.h"

#include <QLineEdit>
#include <algorithm>
#include <cmath>

#include "engine/numbers.h"
#include "platform/qt/qt_text.h"

namespace quenloft {
namespace {

constexpr double kMost = 2147483647;

}  // namespace

UpDownBox::UpDownBox(QWidget* parent) : QAbstractSpinBox(parent) {
    lineEdit()->setText(QStringLiteral("0"));
}

void UpDownBox::stepBy(int steps) {
    const double number = std::clamp(std::nearbyint(Number()) + steps, 0.0, kMost);
    lineEdit()->setText(ToQt(NumberToText(number)));
    lineEdit()->selectAll();
}

QSize UpDownBox::sizeHint() const {
    constexpr int kDigits = 6;
    const QFontMetrics font = fontMetrics();
    const int arrows = 2 * font.height();
    return {font.horizontalAdvance(QString(kDigits, u'0')) + arrows,
            QAbstractSpinBox::sizeHint().height()};
}

QAbstractSpinBox::StepEnabled UpDownBox::stepEnabled() const {
    const double number = Number();
    return (number < kMost ? StepUpEnabled : StepNone) | (number > 0 ? StepDownEnabled : StepNone);
}

double UpDownBox::Number() const { return NumericPrefix(FromQt(lineEdit()->text())); }

}  // namespace quenloft
