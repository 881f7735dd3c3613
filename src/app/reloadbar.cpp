#include "reloadbar.h"

#include <tools/elidedlabel.h>

#include <QAction>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QPushButton>

namespace {

/// The name of the first, and how many more there are.
QString listed(const QStringList &paths) {
  QString first = QFileInfo(paths.first()).fileName();
  if (paths.size() == 1)
    return first;
  return paths.size() == 2 ? ReloadBar::tr("%1 and 1 more").arg(first)
                           : ReloadBar::tr("%1 and %2 more").arg(first).arg(paths.size() - 1);
}

} // namespace

ReloadBar::ReloadBar(QWidget *parent)
    : QToolBar(tr("Changed files"), parent)
    , m_text(new ElidedLabel)
    , m_reload(new QPushButton(tr("&Reload"))) {
  setObjectName(QStringLiteral("reloadBar"));
  setMovable(false);
  setContextMenuPolicy(Qt::PreventContextMenu);
  toggleViewAction()->setVisible(false); // it comes and goes by itself
  constexpr int Margin = 6;              // px
  auto *contents = new QWidget;
  auto *row = new QHBoxLayout(contents);
  row->setContentsMargins(2 * Margin, Margin / 2, Margin, Margin / 2);
  m_text->setTextFormat(Qt::PlainText); // names of files
  m_text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  m_reload->setToolTip(tr("Read the files again; view, selection, styles and layers stay (F5)"));
  auto *ignore = new QPushButton(tr("Ig&nore"));
  ignore->setToolTip(tr("Go on with what was read before"));
  row->addWidget(m_text, 1);
  row->addWidget(m_reload);
  row->addWidget(ignore);
  addWidget(contents);
  contents->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  contents->setAutoFillBackground(true); // in the colours of tips, which every desktop keeps legible
  contents->setBackgroundRole(QPalette::ToolTipBase);
  m_text->setForegroundRole(QPalette::ToolTipText);
  connect(m_reload, &QPushButton::clicked, this, &ReloadBar::reloadWanted);
  connect(ignore, &QPushButton::clicked, this, &ReloadBar::ignored);
  hide();
}

void ReloadBar::tell(const QStringList &changed, const QStringList &gone) {
  QStringList sentences;
  if (!changed.isEmpty())
    sentences.append(changed.size() == 1 ? tr("%1 was changed on disk.").arg(listed(changed))
                                         : tr("%1 were changed on disk.").arg(listed(changed)));
  if (!gone.isEmpty())
    sentences.append(gone.size() == 1 ? tr("%1 is no longer there; what was read of it stays shown.").arg(listed(gone))
                                      : tr("%1 are no longer there; what was read of them stays shown.").arg(listed(gone)));
  m_text->setText(sentences.join(QLatin1Char(' ')));
  setAccessibleName(m_text->text());
  m_reload->setVisible(!changed.isEmpty());
  setVisible(!sentences.isEmpty());
}

void ReloadBar::tellFault(const QString &text) {
  m_text->setText(text);
  setAccessibleName(text);
  m_reload->setVisible(true);
  show();
}
