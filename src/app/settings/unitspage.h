#pragma once

#include <QHash>
#include <QWidget>

class QComboBox;
class QFormLayout;
class QLabel;
class QSpinBox;
class SettingsModel;

/// A page on which people choose units, or the form of numbers, with samples of what comes of it.
class UnitsPage : public QWidget {
  Q_OBJECT
public:
  enum class Content { Units, Numbers };

  UnitsPage(SettingsModel &model, Content content, QWidget *parent = nullptr);

private:
  void addUnits(QFormLayout &form);
  void addNumbers(QFormLayout &form);
  void addChoice(QFormLayout &form, const QString &key, const QString &title);
  void addDigits(QFormLayout &form, const QString &key, const QString &title, const QString &ofZero = QString());
  QLabel *addRow(QFormLayout &form, const QString &title, QWidget *field, const QString &key);
  QLabel *addSample(QFormLayout &form, const QString &title);
  /// Shows what the draft says now.
  void refresh();
  void refreshUnitSample(const QString &quantity, QLabel &note) const;
  void refreshNumberSamples() const;
  QString overridden(const QString &key) const;

  SettingsModel &m_model;
  QHash<QString, QComboBox *> m_choices; ///< by key
  QHash<QString, QSpinBox *> m_digits;
  QHash<QString, QLabel *> m_notes; ///< beside the fields
  QLabel *m_onScreen = nullptr;
  QLabel *m_inLabels = nullptr;
  QLabel *m_inFiles = nullptr;
};
