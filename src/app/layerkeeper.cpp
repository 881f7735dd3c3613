#include "layerkeeper.h"

#include "session.h"

#include <base/agrees.h>
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

void LayerKeeper::enter(const NivraWorkspace &workspace, const LayersOfCase &read) {
  m_aside.reset();
  m_edits.clear();
  m_proposed = workspace.filePath(QStringLiteral("layers.csv"));
  m_path.clear();
  take(read);
}

void LayerKeeper::take(const LayersOfCase &read) {
  m_edits.noteRead(read.values);
  if (m_path.isEmpty() && !read.values.isEmpty())
    m_path = m_proposed;
  if (m_path == m_proposed)
    m_stamp = read.stamp;
}

void LayerKeeper::note(const ElementChange &change) {
  m_edits.note(change);
  emit edited();
}

LayerValues LayerKeeper::unsaved() const {
  const bool isKept = m_edits.isChanged() && m_edits.count() <= Session::MostNames;
  if (!isKept)
    return {};
  return m_aside ? m_aside->own : m_edits.ownValues(m_net);
}

void LayerKeeper::putBack(const LayerValues &values) {
  for (const ElementChange &change : LayerEdits::apply(m_net, values)) {
    m_edits.note(change);
    emit elementsChanged(change);
  }
}

void LayerKeeper::takeAside() {
  m_aside = Aside{m_edits.values(m_net), m_edits.ownValues(m_net)};
}

void LayerKeeper::comeBack(const LayersOfCase &read) {
  const Aside aside = std::exchange(m_aside, std::nullopt).value_or(Aside());
  take(read);
  for (const ElementChange &change : LayerEdits::apply(m_net, aside.own))
    emit elementsChanged(change);
}

bool LayerKeeper::save() {
  if (m_path.isEmpty())
    return saveAs();
  return mayOverwrite() && write(m_path);
}

bool LayerKeeper::mayOverwrite() const {
  const FileStamp present = FileStamp::of(m_path);
  if (!present.isOfAFile() || present == m_stamp)
    return true;
  return NivraMsg::agrees(tr("%1 was changed by another program or window since it was read. Overwrite?").arg(m_path));
}

bool LayerKeeper::saveAs() {
  const QString path = QFileDialog::getSaveFileName(&m_window, tr("Save Layers"), m_path.isEmpty() ? m_proposed : m_path,
                                                    tr("Layers (*.csv);;All Files (*)"));
  return !path.isEmpty() && write(path);
}

bool LayerKeeper::write(const QString &path) {
  QString reason;
  if (!LayersFile::write(path, m_aside ? m_aside->all : m_edits.values(m_net), &reason)) {
    NivraMsg::message(NivraMsg::Kind::Warning, reason);
    return false;
  }
  const bool isOfTheCase = QFileInfo(path) == QFileInfo(m_proposed);
  m_path = isOfTheCase ? m_proposed : path;
  m_stamp = FileStamp::of(path);
  if (isOfTheCase)
    m_edits.setSavedWithCase();
  else
    m_edits.setSaved();
  emit edited();
  emit written(m_path);
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
