#include "theme/appearance.h"

#include "settings/usersetting.h"
#include "svgicon.h"
#include "theme/desktoptheme.h"
#include "theme/themepalette.h"
#include "theme/windowstyle.h"

#include <base/nivramsg.h>
#include <base/settings.h>

#include <QActionGroup>
#include <QApplication>
#include <QMenu>
#include <QStyle>
#include <QToolTip>

#include <array>

namespace {

constexpr std::array<const char *, 3> Values{"like the desktop", "light", "dark"};

Appearance::Mode modeOfUser() {
  const QString value = UserSetting::value(Settings::Appearance.key());
  for (std::size_t i = 0; i < Values.size(); ++i) {
    if (value == QLatin1String(Values[i]))
      return static_cast<Appearance::Mode>(i);
  }
  return Appearance::Mode::Desktop;
}

/// What the toolkit knows of the desktop; its own usual colours are none of a desktop's.
bool hasOwnColors(const QPalette &palette) {
  const QPalette usual = QApplication::style()->standardPalette();
  for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Base, QPalette::Text, QPalette::Highlight}) {
    if (palette.color(role) != usual.color(role))
      return true;
  }
  return false;
}

} // namespace

Appearance::Appearance(QObject *parent)
    : QObject(parent)
    , m_desktop(new DesktopTheme(this))
    , m_menu(new QMenu(tr("Appearance"), qobject_cast<QWidget *>(parent))) {
  WindowStyle::use();
  fillMenu();
  GeneralSettings::instance().load(QString(), Told()); // so that the first paint has the right colours already
  connect(m_desktop, &DesktopTheme::changed, this, &Appearance::apply);
  m_mode = modeOfUser();
  apply();
}

void Appearance::fillMenu() {
  m_menu->setIcon(svgIcon(QStringLiteral("appearance")));
  auto *choices = new QActionGroup(this);
  for (const auto &[mode, text, tip] :
       {std::make_tuple(Mode::Desktop, tr("Like the desktop"), tr("Light or dark, as the other windows of the desktop are")),
        std::make_tuple(Mode::Light, tr("Light"), tr("Dark letters on light ground")),
        std::make_tuple(Mode::Dark, tr("Dark"), tr("Light letters on dark ground; pictures and paper stay light"))}) {
    QAction *action = m_menu->addAction(text);
    action->setToolTip(tip);
    action->setCheckable(true);
    action->setData(static_cast<int>(mode));
    choices->addAction(action);
    connect(action, &QAction::triggered, this, [this, chosen = mode] { choose(chosen); });
  }
}

void Appearance::refresh() {
  const Mode mode = modeOfUser();
  if (mode == m_mode)
    return;
  m_mode = mode;
  apply();
}

void Appearance::choose(Mode mode) {
  const QString key = Settings::Appearance.key();
  const QString value = QLatin1String(Values.at(static_cast<std::size_t>(mode)));
  GeneralSettings::instance().setValue(key, value); // also where the file cannot be written
  refresh();
  QString reason;
  if (!UserSetting::store(key, value, &reason))
    NivraMsg::message(NivraMsg::Kind::Warning, tr("The choice holds until the program ends: %1").arg(reason));
}

void Appearance::followDesktop() {
  m_desktop->ask();
}

void Appearance::apply() {
  for (QAction *action : m_menu->actions())
    action->setChecked(action->data().toInt() == static_cast<int>(m_mode));
  // Taken before the first change, as the toolkit has no way back to it.
  static const QPalette OfDesktop = QApplication::palette();
  const bool wasDark = ThemePalette::isDark(QApplication::palette());
  bool isDark = ThemePalette::isDark(OfDesktop);
  if (m_mode != Mode::Desktop)
    isDark = m_mode == Mode::Dark;
  else if (m_desktop->isDark())
    isDark = *m_desktop->isDark();
  const bool isOfDesktop = hasOwnColors(OfDesktop) && ThemePalette::isDark(OfDesktop) == isDark;
  const QPalette wanted = isOfDesktop ? OfDesktop : isDark ? ThemePalette::dark() : ThemePalette::light();
  if (wanted != QApplication::palette()) // as long as it was never set, the toolkit follows the desktop by itself
    QApplication::setPalette(wanted);
  QToolTip::setPalette(QApplication::palette());
  if (isDark != wasDark)
    emit changed();
}
