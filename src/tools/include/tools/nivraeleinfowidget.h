#pragma once

#include <QColor>
#include <QFont>
#include <QWidget>

#include <functional>
#include <memory>

class element;

namespace Ui {
class NivraEleInfoWidget;
}

/// The panel "Element information": the marked element and subnet, its label in the drawing, its violated bounds.
class NivraEleInfoWidget : public QWidget {
  Q_OBJECT
public:
  /// A label as the drawing shows it; no text when there is none.
  struct PlotLabel {
    QString text; ///< HTML
    QFont font;
    QColor color = Qt::black;
    QColor background = Qt::black; ///< black for none
  };
  using LabelOf = std::function<PlotLabel(const element &)>;

  /// \param labelOf asks the drawing
  explicit NivraEleInfoWidget(LabelOf labelOf, QWidget *parent = nullptr);
  ~NivraEleInfoWidget() override;

  void showEleLabel(const element *e);
  void showSubLabel(const element *e);
  void reset();

  /// The bounds of a property "CB_info", such as "(a;b;)", as HTML.
  static QString bounds(const QString &info);

private:
  std::unique_ptr<Ui::NivraEleInfoWidget> m_ui;
  LabelOf m_labelOf;
};
