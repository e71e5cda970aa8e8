// A text box for a number: as wide as one needs, in any font.
#pragma once

#include <QLineEdit>

namespace quenloft {

class NumberBox : public QLineEdit {
    Q_OBJECT

  public:
    explicit NumberBox(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
};

}  // namespace quenloft
