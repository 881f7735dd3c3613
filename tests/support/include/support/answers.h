#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>

#include <vector>

/// Makes the program show message boxes and answers those that open during its lifetime, one after the other, each after the
/// time that a person takes. One too many is cancelled, so that no test waits for a person.
class Answers {
public:
  explicit Answers(std::vector<QMessageBox::StandardButton> buttons, int afterMs = 0)
      : m_buttons(std::move(buttons))
      , m_afterMs(afterMs) {
    qunsetenv("NIVRA_BATCH"); // which stands for all tests
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { lookForBox(); });
    constexpr int Soon = 10; // ms
    m_timer.start(Soon);
  }
  ~Answers() { qputenv("NIVRA_BATCH", "1"); }
  Answers(const Answers &) = delete;
  Answers &operator=(const Answers &) = delete;

  /// As many boxes have opened as answers were ready.
  bool areGiven() const { return m_texts.size() == static_cast<int>(m_buttons.size()); }
  const QStringList &texts() const { return m_texts; }

private:
  void lookForBox() {
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (box == nullptr || box == m_seen)
      return;
    m_seen = box;
    const auto next = static_cast<std::size_t>(m_texts.size());
    m_texts.append(box->text());
    const auto answer = next < m_buttons.size() ? m_buttons[next] : QMessageBox::NoButton;
    QTimer::singleShot(m_afterMs, box, [box, answer] {
      if (QAbstractButton *button = box->button(answer))
        button->click();
      else
        box->reject();
    });
  }

  std::vector<QMessageBox::StandardButton> m_buttons;
  int m_afterMs;
  QPointer<QMessageBox> m_seen;
  QStringList m_texts;
  QTimer m_timer;
};
