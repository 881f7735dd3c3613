#pragma once

#include <tools/layers.h>

#include <QDockWidget>

#include <memory>

class QListWidgetItem;
class QTableWidgetItem;

namespace Ui {
class NivraNetLayersEditor;
}

/// The panel "Layers Editor".
class NivraNetLayersEditor : public QDockWidget {
  Q_OBJECT
public:
  /// What may be changed: only what is seen, or the elements' layers as well.
  enum class EditMode { VisibilityOnly, Layers };
  Q_ENUM(EditMode)

  explicit NivraNetLayersEditor(NetData &net, QWidget *parent = nullptr);
  ~NivraNetLayersEditor() override;

  const Layers &layers() const { return m_layers; }
  void setLayerProperty(const QString &property);

signals:
  void layerVisChanged();
  void itemDoubleClicked(const QString &eleName);
  void itemClicked(const QString &eleName);
  void selectionChanged();
  void propertyChanged(const QStringList &names, const QString &property); ///< elements came into a layer or left one

public slots:
  void on_tableWidget_itemClicked(QTableWidgetItem *item);
  void on_tableWidget_cellChanged(int row, int column);
  void on_tableWidget_itemDoubleClicked(QTableWidgetItem *item);
  void on_toolButtonAdd_clicked();
  void on_toolButtonDel_clicked();
  void on_toolButtonList_clicked();
  void on_toolButtonShowAll_clicked();
  void on_toolButtonHideAll_clicked();
  void on_toolButtonInvert_clicked();
  void on_listWidget_itemDoubleClicked(QListWidgetItem *item);
  void on_listWidget_currentItemChanged(QListWidgetItem *current, QListWidgetItem *previous);
  void on_pushButtonReload_clicked();
  void on_lineEditProperty_editingFinished();
  void changeEditMode(NivraNetLayersEditor::EditMode mode);

private:
  void fill();
  void showList(const QString &layer);
  QString layerAt(int row) const;
  QString askForLayer();
  bool confirms(const QString &title, const QString &question);

  std::unique_ptr<Ui::NivraNetLayersEditor> m_ui;
  NetData &m_net;
  Layers m_layers;
  EditMode m_mode = EditMode::Layers;
};
