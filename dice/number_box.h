// A text box for a number: as wide as one needs, in any font.
#pragma once

#include <QLineEdit>

namespace quenloft {

class NumberBox : public QLineEdit {
    Q_OBJECT

  public:
    explicit NumberBox(QWidget* parent = nullptr);

    /// From now on any number of 32 bits is seen as a whole, however narrow the window.
    void MakeRoomForAnyNumber();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    /// Its number is there to be typed over when the window has just come to the front.
    void focusInEvent(QFocusEvent* event) override;

  private:
    QString usual_ = QStringLiteral("00000000");
    QString shortest_ = QStringLiteral("0000");
};

}  // namespace quenloft
