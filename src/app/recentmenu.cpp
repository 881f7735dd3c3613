#include "recentmenu.h"

#include "recentfiles.h"

#include <tools/plaintip.h>

#include <QProxyStyle>

namespace {

/// Icons that one can see something on.
class LargeIcons : public QProxyStyle {
public:
  using QProxyStyle::QProxyStyle;
  int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override {
    constexpr int IconSize = 48; // px
    return metric == PM_SmallIconSize ? IconSize : QProxyStyle::pixelMetric(metric, option, widget);
  }
};

/// The first nine have a digit as their key; ampersands of a name are no keys.
QString entryText(const RecentFile &file, int number) {
  constexpr int Digits = 9;
  QString text = RecentMenu::tr("%1   (%2)").arg(file.name(), file.folder());
  text.replace(QLatin1Char('&'), QLatin1String("&&"));
  return number <= Digits ? QStringLiteral("&%1  %2").arg(number).arg(text) : text;
}

} // namespace

RecentMenu::RecentMenu(RecentFiles &files, QWidget *parent)
    : QMenu(tr("Open &Recent"), parent)
    , m_files(files) {
  setToolTipsVisible(true);
  connect(this, &QMenu::aboutToShow, this, &RecentMenu::fill);
  connect(&m_looks, &RecentLooks::seen, this, &RecentMenu::show);
}

void RecentMenu::fill() {
  if (qobject_cast<QProxyStyle *>(style()) == nullptr) {
    auto *large = new LargeIcons(QStringLiteral("Fusion"));
    large->setParent(this);
    setStyle(large);
  }
  clear();
  m_files.read();
  m_entries.clear();
  int number = 0;
  for (const RecentFile &file : m_files.all()) {
    if (++number > Shown)
      break;
    QAction *action = addAction(entryText(file, number));
    m_entries.insert(file.path, action);
    connect(action, &QAction::triggered, this, [this, path = file.path] { emit fileWanted(path); });
  }
  if (m_entries.isEmpty()) {
    addAction(tr("No recent files"))->setEnabled(false);
    return;
  }
  addSeparator();
  addAction(tr("Remove &Missing Files"), &m_files, &RecentFiles::removeMissing);
  addAction(tr("&Clear List"), &m_files, &RecentFiles::clearAsked);
  const QStringList paths = m_files.paths();
  for (const QString &path : paths)
    show(path);
  const auto *above = qobject_cast<QMenu *>(parentWidget());
  if (above == nullptr || above->isVisible()) // else the names alone are asked for
    m_looks.look(paths);
}

/// As it was seen last.
void RecentMenu::show(const QString &path) {
  QAction *action = m_entries.value(path);
  if (action == nullptr)
    return;
  const bool isThere = m_looks.isThere(path);
  action->setIcon(QIcon(QPixmap::fromImage(m_looks.picture(path))));
  action->setEnabled(isThere);
  action->setToolTip(PlainTip::of(isThere ? path : tr("%1 is no longer there").arg(path)));
}
