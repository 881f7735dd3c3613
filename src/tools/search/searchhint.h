#pragma once

#include <model/netdata.h>
#include <tools/searchparams.h>

#include <QCoreApplication>
#include <QString>

/// What a person would want to know about a search that found nothing, or more than was meant.
class SearchHint {
  Q_DECLARE_TR_FUNCTIONS(SearchHint)
public:
  /// Empty when there is nothing to say. \param found number of rows
  static QString of(NetData &net, const SearchParams &params, std::size_t found);
};
