// The list of results of the dice windows: lines of text in columns, hundreds of thousands of them.
#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <string>
#include <vector>

namespace quenloft {

/// Holds the lines; each is made a QString only while it is on the screen.
class ResultModel : public QAbstractListModel {
    Q_OBJECT

  public:
    explicit ResultModel(QObject* parent);

    /// To be called before the first line is added.
    void PutNewestFirst() { newestFirst_ = true; }
    /// Gives the row of the first of them.
    int Add(std::vector<std::string> lines);
    void Clear();
    std::size_t Size() const { return lines_.size(); }
    /// What the lines take up: for the ReportLines that are to be added.
    std::size_t Bytes() const { return bytes_; }
    const std::string& Line(std::size_t row) const;
    /// The row of a line that is about as wide as the widest.
    int LongestRow() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

  private:
    std::size_t Place(std::size_t row) const {
        return newestFirst_ ? lines_.size() - 1 - row : row;
    }

    bool newestFirst_ = false;
    std::vector<std::string> lines_;  // In the order in which they were added.
    std::size_t longest_ = 0;         // Place of the longest.
    std::size_t bytes_ = 0;
};

/// Tabs are columns that are wide enough for the headers in any font.
class ResultList : public QListView {
    Q_OBJECT

  public:
    explicit ResultList(QWidget* parent = nullptr);

    /// The newest line stands on top. To be called before the first line is added.
    void PutNewestFirst() { model_->PutNewestFirst(); }
    /// The first tab ends a column so narrow that a header reaches past it, so that rows with one
    /// tab more stand below their headers.
    void UseNarrowFirstColumn();

    /// Shows the lines, the first of them at the top as far as there is room.
    void Add(std::vector<std::string> lines);
    void Clear() { model_->Clear(); }
    std::size_t Bytes() const { return model_->Bytes(); }
    /// From the top; "\r\n" between the lines.
    std::string Text() const;
    /// From the top; "\r\n" behind each line.
    std::string TextOfWholeLines() const;

  private:
    ResultModel* model_;
};

}  // namespace quenloft
