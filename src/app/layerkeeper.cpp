#include "layerkeeper.h"

#include "session.h"

#include <base/nivramsg.h>
#include <io/nivraworkspace.h>

#include <QFileDialog>
#include <QFileInfo>
#include <QWidget>

#include <algorithm>
#include <utility>

LayerKeeper::LayerKeeper(NetData &net, QWidget &window)
    : QObject(&window)
    , m_net(net)
    , m_window(window) {}

void LayerKeeper::enter(const NivraWorkspace &workspace, const LayerValues &read) {
  m_edits.clear();
  m_edits.note(read);
  m_proposed = workspace.filePath(QStringLiteral("layers.csv"));
  m_path = read.isEmpty() ? QString() : m_proposed;
}

void LayerKeeper::note(const ElementChange &change) {
  m_edits.note(change);
  emit edited();
}

LayerValues LayerKeeper::unsaved() const {
  const bool isKept = m_edits.isChanged() && m_edits.count() <= Session::MostNames;
  return isKept ? m_edits.values(m_net) : LayerValues();
}

void LayerKeeper::putBack(const LayerValues &values) {
  for (const ElementChange &change : LayerEdits::apply(m_net, values)) {
    m_edits.note(change);
    emit elementsChanged(change);
  }
}

void LayerKeeper::putBackAside() {
  for (const ElementChange &change : LayerEdits::apply(m_net, std::exchange(m_aside, {})))
    emit elementsChanged(change);
}

bool LayerKeeper::save() {
  return m_path.isEmpty() ? saveAs() : write(m_path);
}

bool LayerKeeper::saveAs() {
  const QString path = QFileDialog::getSaveFileName(&m_window, tr("Save Layers"), m_path.isEmpty() ? m_proposed : m_path,
                                                    tr("Layers (*.csv);;All Files (*)"));
  return !path.isEmpty() && write(path);
}

bool LayerKeeper::write(const QString &path) {
  QString reason;
  if (!LayersFile::write(path, m_edits.values(m_net), &reason)) {
    NivraMsg::message(NivraMsg::Kind::Warning, reason);
    return false;
  }
  m_path = path;
  m_edits.setSaved();
  emit edited();
  return true;
}

void LayerKeeper::load() {
  const QString path =
      QFileDialog::getOpenFileName(&m_window, tr("Load Layers"), m_path.isEmpty() ? QFileInfo(m_proposed).path() : m_path,
                                   tr("Layers (*.csv);;All Files (*)"));
  if (path.isEmpty())
    return;
  Findings findings;
  const LayerValues values = LayersFile::read(path, FileAccess::Source::Trusted, findings);
  report(findings);
  putBack(values);
  emit edited();
  const LayerValues now = m_edits.values(m_net);
  if (std::none_of(values.keyBegin(), values.keyEnd(), [&now](const QString &property) { return now.contains(property); }))
    NivraMsg::information(tr("%1 names no element of this network.").arg(path));
}
