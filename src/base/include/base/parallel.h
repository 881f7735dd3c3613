#pragma once

#include <algorithm>
#include <atomic>
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

/// Calls work(state, first, last) for chunks of the range from 0 to count, each taken by the thread that is free, for steps
/// whose cost differs. Each thread makes a state of its own by makeState(). The first exception of a chunk is thrown again.
template <typename MakeState, typename Work>
void inChunks(std::size_t count, std::size_t chunk, const MakeState &makeState, const Work &work) {
  std::atomic<std::size_t> next = 0;
  const auto takeChunks = [&] {
    auto state = makeState();
    while (true) {
      const std::size_t first = next.fetch_add(chunk);
      if (first >= count)
        return;
      work(state, first, std::min(first + chunk, count));
    }
  };
  const std::size_t threads = std::min<std::size_t>(std::max(1U, std::thread::hardware_concurrency()), count / chunk + 1);
  std::vector<std::future<void>> others;
  for (std::size_t i = 1; i < threads; ++i)
    others.push_back(std::async(std::launch::async, takeChunks));
  takeChunks();
  for (std::future<void> &other : others)
    other.get();
}

} // namespace Parallel
