// Filter lists of file dialogs ("Table (*.tbl)|*.tbl|All files (*.*)|*.*") in the toolkit's terms.
#pragma once

#include <QString>
#include <QStringList>
#include <string_view>

namespace quenloft {

/// One name filter a pair: "Table (*.tbl)", "All files (*)". A caption that ends in a parenthesis
/// shows its patterns already: they are taken off, for the toolkit adds them itself.
QStringList ToNameFilters(std::string_view filter);

/// The extension that a name typed without one gets under a name filter ("Table (*.tbl)" gives
/// "tbl"); empty where the filter takes any file.
QString SuffixOf(const QString& nameFilter);

}  // namespace quenloft
