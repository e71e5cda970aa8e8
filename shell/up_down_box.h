// A text box that arrows step up and down.
#pragma once

#include <QAbstractSpinBox>
#include <string>

namespace quenloft {

/// Takes any text, as the other boxes do; the arrows step from its leading number, not below 0.
class UpDownBox : public QAbstractSpinBox {
    Q_OBJECT

  public:
    explicit UpDownBox(QWidget* parent = nullptr);

    /// The box itself, whose name differs from that of the arrows.
    QLineEdit* Box() const { return lineEdit(); }

    void stepBy(int steps) override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    StepEnabled stepEnabled() const override;

  private:
    double Number() const;
};

}  // namespace quenloft
