// A button and a label for texts of any length: what does not fit ends in dots, and the tooltip
// shows all of it.
#pragma once

#include <QLabel>
#include <QPushButton>

namespace quenloft {

/// Shows a title to the letter ("&" too). A screen reader reads the whole of it.
class TitleButton : public QPushButton {
    Q_OBJECT

  public:
    explicit TitleButton(QWidget* parent = nullptr);

    void SetTitle(const QString& title);
    /// A marked button stands out by its weight and by a bar at its edge.
    void SetMarked(bool marked);
    bool IsMarked() const { return marked_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    bool marked_ = false;
};

class ElidedLabel : public QLabel {
    Q_OBJECT

  public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    void SetTitle(const QString& title);

    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace quenloft
