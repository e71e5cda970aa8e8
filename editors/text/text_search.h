// Finding and replacing in a text box.
#pragma once

#include <optional>

#include "editors/shared/find_bar.h"

class QTextBlock;

namespace quenloft {

class TextBox;

/// Finds within lines, as files have them: those that the box shows in several blocks are one.
class TextSearch : public Searchable {
  public:
    explicit TextSearch(TextBox& box) : box_(box) {}

    QString SelectedLine() const override;
    bool FindNext(const SearchRequest& request) override;
    void ReplaceSelected(const SearchRequest& request, const QString& replacement) override;
    int ReplaceAll(const SearchRequest& request, const QString& replacement) override;
    void FocusSearched() override;

  private:
    /// Positions in the document.
    struct Match {
        int start = 0;
        int end = 0;
    };
    std::optional<Match> FindAfter(const SearchRequest& request, int position) const;
    std::optional<Match> FindBefore(const SearchRequest& request, int position) const;

    TextBox& box_;
};

}  // namespace quenloft
