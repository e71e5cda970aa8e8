// The reference browser's list as a view can show it.
#pragma once

#include <QAbstractTableModel>
#include <QTimer>
#include <string>
#include <string_view>

#include "editors/reference/reference_list.h"

namespace quenloft {

/// Reads the titles of tables a few milliseconds at a time between events, so that nothing waits
/// for a folder of a hundred thousand. The rows come anew, with a reset, whenever others are shown
/// or their order changes.
class ReferenceModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    enum Column { kTitle, kFile, kColumns };

    ReferenceModel(Engine& engine, QObject* parent);

    void Fill(const ReferencePlace& place, bool showHidden);
    void SetFilter(std::string_view text);
    /// Leaves the titles that are not read yet as they are.
    void StopReading() { reading_.stop(); }
    bool IsReading() const { return reading_.isActive(); }

    const ReferenceList& List() const { return list_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

  signals:
    /// Some rows have new titles. A signal for each of them would cost more than reading it.
    void TitlesRead();

  private:
    QVariant Text(const ReferenceItem& item, int column) const;
    /// True when all titles are known.
    bool ReadFor(int milliseconds);
    void ReadOn();

    ReferenceList list_;
    QTimer reading_;
};

}  // namespace quenloft
