#pragma once

#include <QObject>

#include <memory>

class HelpWindow;
class MetaDataTable;
class NetData;
class NivraVecTable;
class QMainWindow;

/// The tools that have windows of their own: the vector table, the metadata table and the guide. Each is made when it is
/// asked for.
class ToolWindows : public QObject {
  Q_OBJECT
public:
  ToolWindows(QMainWindow &window, NetData &net);
  ~ToolWindows() override;

  /// Null before somebody asked for it.
  NivraVecTable *vectorTableIfAny() const { return m_vectorTable.get(); }
  NivraVecTable &vectorTable();
  void showVectorTable();
  /// Another network. \param directory of its case
  void takeNetwork(const QString &directory);
  /// Values, or how they are written, have changed.
  void showChanges();
  void showMetaData();
  /// The page of the guide about a tool.
  void showHelp(const QString &page);
  /// About the one that has the keyboard.
  void showHelpOfFocus();

signals:
  void vectorTableMade(NivraVecTable *table); ///< to be connected, and not shown yet

private:
  QMainWindow &m_window;
  NetData &m_net;
  QString m_directory;
  std::unique_ptr<NivraVecTable> m_vectorTable;
  std::unique_ptr<MetaDataTable> m_metaData;
  std::unique_ptr<HelpWindow> m_help;
};
