#pragma once

#include <tools/layeredits.h>

#include <QObject>

#include <optional>

class NivraWorkspace;

/// Keeps layers that were edited: writes them into a file that a person chooses, and reads such files. The network files
/// are never written.
class LayerKeeper : public QObject {
  Q_OBJECT
public:
  /// \param net outlives what this object does
  LayerKeeper(NetData &net, QWidget &window);

  /// \param read of the case's own file of layers
  void enter(const NivraWorkspace &workspace, const LayersOfCase &read);
  void note(const ElementChange &change);
  bool isUnsaved() const { return m_edits.isChanged(); }
  int count() const { return m_edits.count(); }
  /// Empty when everything is saved, or when there is too much to keep it elsewhere.
  LayerValues unsaved() const;
  /// Edits that were not saved when the program ended.
  void putBack(const LayerValues &values);

  /// Into the file that they came from or went to last; asks for it where there is none, and whether to overwrite what
  /// another program wrote there since. False when nothing was written.
  bool save();
  bool saveAs();
  void load();
  /// Nothing of it is to be saved any more.
  void discard() { m_edits.setSaved(); }
  /// Before the network is read again: until it stands again, what is taken aside is what can be saved.
  void takeAside();
  /// The network stands again: the layers that were edited come back, over those of the case's file as it is now.
  void comeBack(const LayersOfCase &read);

signals:
  void edited();
  void written(const QString &path); ///< by save() or saveAs()
  void elementsChanged(const ElementChange &change);

private:
  struct Aside {
    LayerValues all;
    LayerValues own; ///< without those that the case's file says
  };
  void take(const LayersOfCase &read);
  bool mayOverwrite() const;
  bool write(const QString &path);

  NetData &m_net;
  QWidget &m_window;
  LayerEdits m_edits;
  std::optional<Aside> m_aside; ///< until the network could be read again
  QString m_proposed;           ///< in the folder of the case
  QString m_path;               ///< empty before the first file
  FileStamp m_stamp;            ///< of the file there, as it was read or written
};
