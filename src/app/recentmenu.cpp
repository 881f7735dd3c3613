#include "recentmenu.h"

#include "recentfiles.h"
#include "thumbnails.h"

#include <tools/plaintip.h>

#include <QFileInfo>
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
}

void RecentMenu::fill() {
  if (qobject_cast<QProxyStyle *>(style()) == nullptr) {
    auto *large = new LargeIcons(QStringLiteral("Fusion"));
    large->setParent(this);
    setStyle(large);
  }
  clear();
  m_files.read();
  const auto *above = qobject_cast<QMenu *>(parentWidget());
  const bool isSeen = above == nullptr || above->isVisible(); // else the names alone are asked for, and no disk is
  int number = 0;
  bool isAnyMissing = false;
  for (const RecentFile &file : m_files.all()) {
    if (++number > Shown)
      break;
    QAction *action = addAction(entryText(file, number));
    if (isSeen)
      action->setIcon(QIcon(QPixmap::fromImage(Thumbnails::read(file.path))));
    const bool isThere = !isSeen || QFileInfo(file.path).isFile();
    isAnyMissing = isAnyMissing || !isThere;
    action->setEnabled(isThere);
    action->setToolTip(PlainTip::of(isThere ? file.path : tr("%1 is no longer there").arg(file.path)));
    connect(action, &QAction::triggered, this, [this, path = file.path] { emit fileWanted(path); });
  }
  if (m_files.all().empty()) {
    addAction(tr("No recent files"))->setEnabled(false);
    return;
  }
  addSeparator();
  QAction *missing = addAction(tr("Remove &Missing Files"), &m_files, &RecentFiles::removeMissing);
  missing->setEnabled(isAnyMissing || !isSeen);
  addAction(tr("&Clear List"), &m_files, &RecentFiles::clearAsked);
}
