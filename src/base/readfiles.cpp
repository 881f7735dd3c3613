#include <base/readfiles.h>

#include <mutex>

namespace {

struct Present {
  std::mutex mutex;
  ReadFiles *notes = nullptr;
};

Present &present() {
  static Present only;
  return only;
}

} // namespace

ReadFiles::ReadFiles() {
  const std::lock_guard<std::mutex> lock(present().mutex);
  present().notes = this;
}

ReadFiles::~ReadFiles() {
  const std::lock_guard<std::mutex> lock(present().mutex);
  present().notes = nullptr;
}

ReadFiles::Stamps ReadFiles::stamps() const {
  const std::lock_guard<std::mutex> lock(present().mutex);
  return m_stamps;
}

void ReadFiles::note(const QString &path) {
  const std::lock_guard<std::mutex> lock(present().mutex);
  if (present().notes != nullptr)
    present().notes->m_stamps.emplace(path, FileStamp::of(path)); // as it was first: what was read may be half of each
}
