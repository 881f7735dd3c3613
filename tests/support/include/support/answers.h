#pragma once

#include <base/nivramsg.h>

#include <QStringList>
#include <QThread>

#include <vector>

/// Stands for the person: the program is interactive during its lifetime, and the boxes that it wants to show are answered
/// one after the other, each after the time that a person takes. One too many is cancelled. Only one at a time.
class Answers {
public:
  explicit Answers(std::vector<NivraMsg::Answer> answers, unsigned long afterMs = 0)
      : m_answers(std::move(answers))
      , m_afterMs(afterMs) {
    qunsetenv("NIVRA_BATCH"); // which stands for all tests
    NivraMsg::setBoxSink([this](const NivraMsg::Box &box) { return answerTo(box); });
  }
  ~Answers() {
    NivraMsg::setBoxSink({});
    qputenv("NIVRA_BATCH", "1");
  }
  Answers(const Answers &) = delete;
  Answers &operator=(const Answers &) = delete;

  /// As many boxes have been shown as answers were ready.
  bool areGiven() const { return m_boxes.size() == m_answers.size(); }
  const std::vector<NivraMsg::Box> &boxes() const { return m_boxes; }
  QStringList texts() const {
    QStringList texts;
    for (const NivraMsg::Box &box : m_boxes)
      texts.append(box.text);
    return texts;
  }

private:
  NivraMsg::Answer answerTo(const NivraMsg::Box &box) {
    QThread::msleep(m_afterMs);
    const std::size_t next = m_boxes.size();
    m_boxes.push_back(box);
    return next < m_answers.size() ? m_answers[next] : NivraMsg::Answer::Cancel;
  }

  std::vector<NivraMsg::Answer> m_answers;
  unsigned long m_afterMs;
  std::vector<NivraMsg::Box> m_boxes;
};
