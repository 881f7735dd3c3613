#pragma once

#include <QString>

#include <functional>

/// What the benchmarks share: generated networks on disk, and memory measured in a process of its own.
namespace Measure {

/// The geometry file of a generated network of so many elements, made once a run.
QString network(int elements);

/// The same network, each of its names with a character outside of ASCII in place of its first.
QString networkOfOtherNames(int elements);

/// Peak resident memory in MB that the work adds, measured in a forked child; negative when it could not be measured.
double peakMemory(const std::function<void()> &work);

} // namespace Measure
