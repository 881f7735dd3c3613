#pragma once

#include <model/elementchange.h>
#include <tools/layers.h>

#include <QDockWidget>
#include <QSet>

#include <memory>

class LayerModel;
class QModelIndex;
class QStringListModel;
class SortedRows;

namespace Ui {
class NivraNetLayersEditor;
}

/// The panel "Layers Editor". Which layers are hidden belongs to the drawing: the panel says what is wanted, is told what
/// became of it and shows that.
class NivraNetLayersEditor : public QDockWidget {
  Q_OBJECT
public:
  /// What may be changed: only what is seen, or the elements' layers as well.
  enum class EditMode { VisibilityOnly, Layers };
  Q_ENUM(EditMode)

  explicit NivraNetLayersEditor(NetData &net, Told told = {}, QWidget *parent = nullptr);
  ~NivraNetLayersEditor() override;

  void setLayerProperty(const QString &property);
  /// After elements or their properties have changed; a panel that nobody sees looks when it is shown.
  void takeChanges();
  /// Of another network.
  void takeNetwork(const QString &layerProperty);
  /// Whether layers can be saved and loaded here; they can by default.
  void setOffersFiles(bool offers);
  /// By the drawing, after each change.
  void setHiddenLayers(const QSet<QString> &hidden);

  // Of the table of layers and the list of elements. The toolkit would look for signals of the same names.
  void on_tableWidget_itemClicked(const QModelIndex &item);
  /// \param row of the model \param value what the person wants in the cell
  void on_tableWidget_cellChanged(int row, int column, const QVariant &value);
  void on_tableWidget_itemDoubleClicked(const QModelIndex &item);
  void on_listWidget_itemDoubleClicked(const QModelIndex &item);
  void on_listWidget_currentItemChanged(const QModelIndex &current, const QModelIndex &previous);

signals:
  /// \param hidden the layers, by the values of the property, that a person wants to be hidden
  void layerVisChanged(const QString &property, const QSet<QString> &hidden);
  void itemDoubleClicked(const QString &eleName);
  void itemClicked(const QString &eleName);
  void selectionChanged();
  void elementsChanged(const ElementChange &change); ///< elements came into a layer or left one
  void saveWanted();
  void loadWanted();

public slots:
  void on_toolButtonAdd_clicked();
  void on_toolButtonDel_clicked();
  void on_toolButtonList_clicked();
  void on_toolButtonShowAll_clicked();
  void on_toolButtonHideAll_clicked();
  void on_toolButtonInvert_clicked();
  void on_pushButtonReload_clicked(); ///< looks up the layers of the elements anew
  void on_lineEditProperty_editingFinished();
  void changeEditMode(NivraNetLayersEditor::EditMode mode);

protected:
  void showEvent(QShowEvent *event) override;

private:
  /// \param marked the layer whose row is to be the current one
  void fill(const QString &marked = QString());
  void rename(const QString &layer, const QString &name);
  bool mayBecome(const QString &name);
  bool mayChange();
  void showWithout(const QSet<QString> &hidden);
  void tellOfLayers(const QStringList &names);
  void showList(const QString &layer);
  QString layerAt(const QModelIndex &index) const;
  QString askForLayer();
  bool confirms(const QString &title, const QString &question);

  std::unique_ptr<Ui::NivraNetLayersEditor> m_ui;
  NetData &m_net;
  Layers m_layers;
  LayerModel *m_model;
  SortedRows *m_rows;
  QStringListModel *m_names; ///< of the elements of a layer
  EditMode m_mode = EditMode::Layers;
  bool m_isStale = false;
};
