#pragma once

#include <QCoreApplication>
#include <QString>

#include <functional>
#include <vector>

/// What a person changed and did not save, before it would be lost.
struct UnsavedEdits {
  Q_DECLARE_TR_FUNCTIONS(UnsavedEdits)
public:
  struct Kind {
    QString name;               ///< in a list, such as "categories"
    QString question;           ///< when nothing else is unsaved
    std::function<bool()> save; ///< false when it did not come to pass, and why was told
  };

  enum class Answer { Saved, Discarded, Stay };

  /// Asks once for all kinds; without a person to ask, and without any kind, nothing stands in the way.
  static Answer settle(const std::vector<Kind> &kinds);
};
