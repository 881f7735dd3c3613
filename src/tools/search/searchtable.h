#pragma once

#include "search/networksearch.h"

#include <QIODevice>
#include <QStringList>

#include <vector>

/// "searchresults.csv": five lines that tell the restrictions, an empty one, the headers, then a line a row, in Latin-1.
namespace SearchTable {

QStringList headers();
QString title(int column); ///< the header, in the language of the program
/// \param rows in the order in which they are shown
/// False when the device does not take it.
bool write(QIODevice &device, const SearchParams &params, const std::vector<SearchRow> &rows);

} // namespace SearchTable
