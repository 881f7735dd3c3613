#pragma once

#include "why/valuereasons.h"

#include <QDockWidget>

#include <utility>
#include <vector>

class ElidedLabel;
class FileSearch;
class NetworkLoader;
class QAction;
class QToolButton;
class QTreeView;
class ReasonModel;

/// The panel "Why This Value": what made a property of an element what it is, and from there on to what that was made of.
class WhyDock : public QDockWidget {
  Q_OBJECT
public:
  /// Both outlive the panel.
  WhyDock(const NetData &net, const NetworkLoader &loader, QWidget *parent = nullptr);
  ~WhyDock() override;

  /// Explains the value, in front of the other panels.
  void ask(const QString &element, const QString &property);
  /// Before the elements go; refresh() asks anew where they are back.
  void pause();
  /// After values have changed.
  void refresh();

signals:
  void elementAsked(const QString &name); ///< the element that is explained now is another one

private:
  using Question = std::pair<QString, QString>; ///< element and property

  QWidget *makeContents();
  void follow(const QModelIndex &line);
  void goBack();
  void explain(const Question &question);
  void clear();
  void show(const std::vector<ValueSource::Place> *places);

  const NetData &m_net;
  const NetworkLoader &m_loader;
  ValueReasons m_reasons;
  ReasonModel *m_model;
  FileSearch *m_search;
  ElidedLabel *m_title = nullptr;
  QTreeView *m_tree = nullptr;
  QToolButton *m_back = nullptr;
  std::vector<Question> m_before; ///< what was asked before, the last at the end
  Question m_now;
};
