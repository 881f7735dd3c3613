#pragma once

#include <base/fileaccess.h>
#include <base/filestamp.h>
#include <base/finding.h>
#include <model/elementchange.h>
#include <model/netdata.h>

#include <QCoreApplication>
#include <QMap>
#include <QSet>

#include <vector>

/// Layers of elements, by layer property and name of the element; an empty layer stands for none.
using LayerValues = QMap<QString, QMap<QString, QString>>;

/// "layers.csv": which elements belong to another layer than the network file says.
class LayersFile {
  Q_DECLARE_TR_FUNCTIONS(LayersFile)
public:
  static LayerValues read(const QString &path, FileAccess::Source source, Findings &findings);
  /// Whole or not at all, to a place that a person chose; false with the reason.
  static bool write(const QString &path, const LayerValues &values, QString *reason);
};

/// The case's own file of layers, as it was read.
struct LayersOfCase {
  LayerValues values;
  FileStamp stamp; ///< of no file where there was none
};

/// Which elements were given to another layer, or taken out of one, since the network was read, and which the case's own
/// file of layers names. What their layers are now is asked of the network.
class LayerEdits {
public:
  /// Puts the layers into the network, where it has the elements, and says what that changed.
  static std::vector<ElementChange> apply(NetData &net, const LayerValues &values);

  void note(const ElementChange &change);
  /// In place of what the case's own file said before.
  void noteRead(const LayerValues &values);
  void clear();
  /// The edits are in a file, or not wanted.
  void setSaved() { m_isChanged = false; }
  /// They are in the case's own file.
  void setSavedWithCase();
  bool isChanged() const { return m_isChanged; }
  int count() const; ///< elements, each for every property
  LayerValues values(const NetData &net) const;
  /// Of those that the case's own file does not say.
  LayerValues ownValues(const NetData &net) const;

private:
  using Elements = QMap<QString, QSet<QString>>; ///< by layer property
  static void collect(const NetData &net, const Elements &elements, LayerValues &values);

  Elements m_read;
  Elements m_own;
  bool m_isChanged = false;
};
