#pragma once

#include <algorithm>
#include <future>
#include <thread>
#include <vector>

/// Work on all processors, for loops whose steps do not touch each other.
namespace Parallel {

/// Calls work(first, last) for the parts of the range from 0 to count, each in a thread of its own, and waits for all of
/// them. Short ranges stay in the calling thread. The first exception of a part is thrown again.
template <typename Work>
void inParts(std::size_t count, const Work &work) {
  constexpr std::size_t WorthAThread = 5000;
  const std::size_t parts =
      std::max<std::size_t>(1, std::min<std::size_t>(std::thread::hardware_concurrency(), count / WorthAThread));
  std::vector<std::future<void>> others;
  for (std::size_t part = 1; part < parts; ++part)
    others.push_back(std::async(std::launch::async,
                                [&work, count, parts, part] { work(count * part / parts, count * (part + 1) / parts); }));
  work(0, count / parts);
  for (std::future<void> &other : others)
    other.get();
}

} // namespace Parallel
