#pragma once

#include <tools/layeredits.h>

#include <QObject>

#include <vector>

class NivraWorkspace;

/// Keeps layers that were edited: writes them into a file that a person chooses, and reads such files. The network files
/// are never written.
class LayerKeeper : public QObject {
  Q_OBJECT
public:
  /// \param net outlives what this object does
  LayerKeeper(NetData &net, QWidget &window);

  /// \param read of the case's own file of layers
  void enter(const NivraWorkspace &workspace, const LayerValues &read);
  void note(const ElementChange &change);
  bool isUnsaved() const { return m_edits.isChanged(); }
  int count() const { return m_edits.count(); }
  /// Empty when everything is saved, or when there is too much to keep it elsewhere.
  LayerValues unsaved() const;
  /// Edits that were not saved when the program ended.
  void putBack(const LayerValues &values);

  /// Into the file that they came from or went to last; asks for it where there is none. False when nothing was written.
  bool save();
  bool saveAs();
  void load();
  /// Nothing of it is to be saved any more.
  void discard() { m_edits.setSaved(); }
  /// Before and after the network is read again: the layers that were edited come back.
  void takeAside() { m_aside = m_edits.values(m_net); }
  void putBackAside();

signals:
  void edited();
  void elementsChanged(const ElementChange &change);

private:
  bool write(const QString &path);

  NetData &m_net;
  QWidget &m_window;
  LayerEdits m_edits;
  LayerValues m_aside; ///< while the network is read again
  QString m_proposed;  ///< in the folder of the case
  QString m_path;      ///< empty before the first file
};
