#pragma once

#include <QMetaObject>
#include <QObject>

#include <memory>
#include <mutex>
#include <utility>

/// Where threads tell an object what they found. They may outlive it, for nothing ends one that waits for a disk: once the
/// mailbox is gone nothing is taken any more.
class Mailbox {
  struct Slot {
    std::mutex mutex;
    QObject *owner;
  };

public:
  /// What a thread keeps.
  class Address {
  public:
    /// Has take() called in the thread of the owner. False when nobody would take it any more.
    template <typename Take>
    bool send(Take take) const {
      const std::lock_guard<std::mutex> lock(m_slot->mutex);
      if (m_slot->owner == nullptr)
        return false;
      QMetaObject::invokeMethod(m_slot->owner, std::move(take), Qt::QueuedConnection);
      return true;
    }

  private:
    friend class Mailbox;
    explicit Address(std::shared_ptr<Slot> slot)
        : m_slot(std::move(slot)) {}
    std::shared_ptr<Slot> m_slot;
  };

  /// \param owner has the mailbox as a member
  explicit Mailbox(QObject &owner)
      : m_slot(std::make_shared<Slot>()) {
    m_slot->owner = &owner;
  }
  ~Mailbox() {
    const std::lock_guard<std::mutex> lock(m_slot->mutex);
    m_slot->owner = nullptr;
  }
  Mailbox(const Mailbox &) = delete;
  Mailbox &operator=(const Mailbox &) = delete;

  Address address() const { return Address(m_slot); }

private:
  std::shared_ptr<Slot> m_slot;
};
