#pragma once

#include <model/netdata.h>
#include <tools/searchparams.h>

#include <QString>

/// What a person would want to know about a search that found nothing, or more than was meant.
namespace SearchHint {

/// Empty when there is nothing to say. \param found number of rows
QString of(NetData &net, const SearchParams &params, std::size_t found);

} // namespace SearchHint
