// The margin with the line numbers at the left of a code box.
#pragma once

#include <QWidget>

namespace quenloft {

class CodeBox;

/// Shows what CodeBox::VisibleLines tells; the box decides where the margin is.
class LineMargin : public QWidget {
  public:
    explicit LineMargin(CodeBox& box);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    CodeBox& box_;
};

}  // namespace quenloft
