#pragma once

#include "settingdescription.h"

#include <QWidget>

class QLineEdit;

/// A field for the text of a setting, with a button where the text can be chosen: a colour, a path. What does not suit is
/// marked, and the tip says what would.
class SettingField : public QWidget {
  Q_OBJECT
public:
  explicit SettingField(const SettingDescription &setting, QWidget *parent = nullptr);

  QString text() const;
  void setText(const QString &text);
  bool isAllowed() const { return m_setting.allows(text().trimmed()); }

private:
  void addButton();
  void choose();
  void mark();

  SettingDescription m_setting;
  QLineEdit *m_line;
};
