#pragma once

#include <QDockWidget>

class BalancePage;
class CategoryList;
class NetData;

/// The dock "Balance": what enters and leaves the network, by groups of nodes. It computes when somebody sees it.
class BalanceDock : public QDockWidget {
  Q_OBJECT
public:
  /// \param categories may be what nodes are grouped by
  BalanceDock(NetData &net, const CategoryList &categories, QWidget *parent = nullptr);
  ~BalanceDock() override;

  /// Before the elements of the network go.
  void forget();
  /// After a network was read, or values, settings or categories have changed.
  void refresh();

signals:
  void elementsWanted(const QStringList &names); ///< those behind a figure

protected:
  void showEvent(QShowEvent *event) override;

private:
  void catchUp();

  NetData &m_net;
  const CategoryList &m_categories;
  BalancePage *m_page = nullptr; ///< made with the first look
  bool m_hasNetwork = false;
  bool m_isStale = false;
};
