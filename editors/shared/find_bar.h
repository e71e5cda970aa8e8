// The bar below an editor that finds and replaces text in it.
#pragma once

#include <QString>
#include <QWidget>
#include <memory>

namespace quenloft {

namespace Ui {
class FindBar;
}

struct SearchRequest {
    QString text;  ///< Not empty.
    bool matchCase = false;
    bool backwards = false;
};

/// What an editor offers to be searched by the bar.
class Searchable {
  public:
    virtual ~Searchable() = default;

    /// The one line of text to begin with: what is selected.
    virtual QString SelectedLine() const = 0;
    /// Selects and shows the next match after the selection (before it, going backwards), going
    /// round at the end. False where there is none at all.
    virtual bool FindNext(const SearchRequest& request) = 0;
    /// Replaces what is selected where that is a match; otherwise does nothing.
    virtual void ReplaceSelected(const SearchRequest& request, const QString& replacement) = 0;
    /// Replaces every match from beginning to end, as one step to undo. Returns how many.
    virtual int ReplaceAll(const SearchRequest& request, const QString& replacement) = 0;
    /// Gives the focus back to what was searched.
    virtual void FocusSearched() = 0;
};

/// Ctrl+F shows it, Ctrl+H with the line to replace, F3 and Shift+F3 go on, Escape hides it.
class FindBar : public QWidget {
    Q_OBJECT

  public:
    /// `searched` outlives the bar. The shortcuts work in `window` and all it holds.
    FindBar(Searchable& searched, QWidget* window);
    ~FindBar() override;

    void ShowFind();
    void ShowReplace();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void FindNext();
    void FindPrevious();
    void Find(bool backwards);
    void Replace();
    void ReplaceAll();
    void Close();

    void Refresh();

    void Open(bool replace);
    SearchRequest Request(bool backwards) const;

    Searchable& searched_;
    std::unique_ptr<Ui::FindBar> ui_;
};

}  // namespace quenloft
