#pragma once

#include "elementtable/columnlist.h"
#include "elementtable/propertycensus.h"

#include <vector>

class NetMetaData;

/// What elements of some types can have as columns, and what they have at first.
namespace UsualColumns {

/// What people look at first: the favourites that are there; of several types those that many elements have.
std::vector<PropertyKey> of(const PropertyCensus &census, const NetMetaData &metaData, const QStringList &types);

/// All properties but the name, in alphabetical order, with what is known of them.
std::vector<ColumnList::Entry> entries(const PropertyCensus &census, const NetMetaData &metaData, const QStringList &types);

} // namespace UsualColumns
