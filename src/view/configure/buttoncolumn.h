#pragma once

#include <QPushButton>
#include <QVBoxLayout>

/// Buttons below one another beside a list, none of which Return presses.
class ButtonColumn : public QVBoxLayout {
public:
  /// \param press a method of the receiver
  template <typename Receiver, typename Press>
  QPushButton *add(const QString &name, const QString &text, const QString &tip, Receiver *receiver, Press press) {
    auto *button = new QPushButton(text);
    button->setObjectName(name);
    button->setToolTip(tip);
    button->setAutoDefault(false);
    QObject::connect(button, &QPushButton::clicked, receiver, press);
    addWidget(button);
    return button;
  }
};
