#pragma once

#include <iterator>
#include <utility>

/// The built-in general settings.
namespace GeneralSettingsTable {

struct Row {
  const char *key;
  const char *value;
  const char *type;
  const char *category;
  const char *options;
};

std::pair<const Row *, const Row *> rows(); ///< first, behind the last

} // namespace GeneralSettingsTable
