#pragma once

#include <QString>

#include <functional>

/// What the benchmarks share: generated networks on disk, and memory measured in a process of its own.
namespace Measure {

/// The geometry file of a generated network of so many elements, made once a run.
QString network(int elements);

/// The same network, with a letter outside of ASCII behind the first letter of each name ("Nä1" for "N1").
/// The names sort as before, so that the elements are walked in the same order.
QString networkOfOtherNames(int elements);

/// Peak resident memory in MB that the work adds, measured in a forked child; negative when it could not be measured.
double peakMemory(const std::function<void()> &work);

} // namespace Measure
