#pragma once

#include <QString>

/// The folder of the file that a person chose last, while the program runs: where the next dialog begins. GUI thread only.
class LastFolder {
public:
  static LastFolder &ofOpening();
  static LastFolder &ofSaving();

  /// Empty before the first choice, and when the folder is no longer there.
  QString path() const;
  /// The proposed file, in this folder where there is one.
  QString with(const QString &proposed) const;
  /// \param file as a dialog returns it: empty when nothing was chosen
  void remember(const QString &file);

private:
  QString m_path;
};
