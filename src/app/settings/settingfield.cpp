#include "settingfield.h"

#include "theme/themepalette.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QToolButton>

SettingField::SettingField(const SettingDescription &setting, QWidget *parent)
    : QWidget(parent)
    , m_setting(setting)
    , m_line(new QLineEdit) {
  auto *row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(0);
  row->addWidget(m_line, 1);
  m_line->setAccessibleName(setting.key);
  setFocusProxy(m_line);
  setAutoFillBackground(true); // in a table it covers the text below it
  if (setting.kind == SettingDescription::Kind::Colour || setting.kind == SettingDescription::Kind::Path)
    addButton();
  connect(m_line, &QLineEdit::textChanged, this, &SettingField::mark);
}

void SettingField::addButton() {
  auto *button = new QToolButton;
  button->setText(QStringLiteral("…"));
  button->setToolTip(m_setting.kind == SettingDescription::Kind::Colour ? tr("Choose the colour") : tr("Choose the file"));
  button->setAccessibleName(button->toolTip());
  layout()->addWidget(button);
  connect(button, &QToolButton::clicked, this, &SettingField::choose);
}

QString SettingField::text() const {
  return m_line->text();
}

void SettingField::setText(const QString &text) {
  m_line->setText(text);
  m_line->selectAll();
}

void SettingField::choose() {
  if (m_setting.kind == SettingDescription::Kind::Path) {
    const QString path = QFileDialog::getOpenFileName(this, m_setting.key, text());
    if (!path.isEmpty())
      setText(path);
    return;
  }
  const QColor color = QColorDialog::getColor(QColor(text()), this, m_setting.key);
  if (color.isValid())
    setText(color.name().toUpper());
}

void SettingField::mark() {
  const bool isWrong = !isAllowed();
  QPalette colors = m_line->palette();
  colors.setColor(QPalette::Text, isWrong ? ThemePalette::wrong(palette()) : palette().color(QPalette::Text));
  m_line->setPalette(colors);
  QString wanted = m_setting.boundsText();
  if (m_setting.kind == SettingDescription::Kind::Colour)
    wanted = tr("a colour such as #58ACFA or red");
  else if (wanted.isEmpty())
    wanted = tr("a number");
  m_line->setToolTip(isWrong ? wanted : QString());
}
