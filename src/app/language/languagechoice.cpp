#include "languagechoice.h"

#include "language.h"
#include "settings/usersetting.h"

#include <base/nivramsg.h>

#include <QActionGroup>
#include <QMenu>
#include <QWidget>

namespace {

const QString &key() {
  static const QString name = QStringLiteral("language");
  return name;
}

} // namespace

LanguageChoice::LanguageChoice(QWidget &window)
    : QObject(&window)
    , m_window(window)
    , m_setting(UserSetting::value(key())) {}

LanguageChoice::~LanguageChoice() = default;

void LanguageChoice::addTo(QMenu &menu) {
  if (m_menu == nullptr) {
    m_menu = new QMenu(tr("Language"), &m_window);
    connect(m_menu, &QMenu::aboutToShow, this, &LanguageChoice::fill);
  }
  menu.addSeparator();
  menu.addMenu(m_menu);
}

void LanguageChoice::fill() {
  m_menu->clear();
  auto *group = new QActionGroup(m_menu);
  const auto add = [&](const char *code, const QString &title) {
    QAction *entry = group->addAction(title);
    entry->setCheckable(true);
    entry->setChecked(m_setting == QLatin1String(code));
    connect(entry, &QAction::triggered, this, [this, code] { choose(QLatin1String(code)); });
    m_menu->addAction(entry);
  };
  add(Language::Desktop, tr("Like the desktop"));
  // Each in its own language, so that whoever got lost finds the way back.
  add(Language::English, QStringLiteral("English"));
  add(Language::German, QStringLiteral("Deutsch"));
}

void LanguageChoice::choose(const QString &code) {
  QString reason;
  if (UserSetting::store(key(), code, &reason))
    emit chosen();
  else
    NivraMsg::message(NivraMsg::Kind::Warning, reason);
}

void LanguageChoice::offerRestart() {
  const QString before = m_setting;
  m_setting = UserSetting::value(key());
  if (m_setting == before || Language::toStartWith(QString()) == Language::spoken() || !NivraMsg::showsBoxes())
    return;
  using Button = NivraMsg::Answer;
  const QString question = tr("The language changes when the program starts the next time. Restart it now? What is open "
                              "comes back as it was.");
  if (NivraMsg::show({NivraMsg::Kind::Question, question, tr("Language"), {Button::Yes, Button::No}, Button::Yes}) ==
      Button::Yes)
    emit restartWanted();
}
