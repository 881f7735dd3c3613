#pragma once

#include <QString>

#include <map>

/// The straightforward reader that the measurements compare with: one Qt JSON document a line into nested ordered maps.
namespace Baseline {

using Network = std::map<QString, std::map<QString, QString>>;

/// Empty when the file cannot be read.
Network read(const QString &path);

} // namespace Baseline
