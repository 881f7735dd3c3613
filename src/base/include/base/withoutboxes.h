#pragma once

namespace NivraMsg {

/// While it lives, what would be a box is a line in the log: a person is busy with a box already, or with a long run.
class WithoutBoxes {
public:
  WithoutBoxes();
  ~WithoutBoxes();
  WithoutBoxes(const WithoutBoxes &) = delete;
  WithoutBoxes &operator=(const WithoutBoxes &) = delete;

private:
  bool m_before;
};

} // namespace NivraMsg
