#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include <vector>

/// Answers the message boxes that open during its lifetime, one after the other. One too many is cancelled, so that no test
/// waits for a person.
class Answers {
public:
  explicit Answers(std::vector<QMessageBox::StandardButton> buttons)
      : m_buttons(std::move(buttons)) {
    qunsetenv("NIVRA_BATCH"); // which stands for all tests
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { answer(); });
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
  void answer() {
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (box == nullptr)
      return;
    const auto next = static_cast<std::size_t>(m_texts.size());
    m_texts.append(box->text());
    if (next < m_buttons.size() && box->button(m_buttons[next]) != nullptr)
      box->button(m_buttons[next])->click();
    else
      box->reject();
  }

  std::vector<QMessageBox::StandardButton> m_buttons;
  QStringList m_texts;
  QTimer m_timer;
};
