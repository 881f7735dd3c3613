#pragma once

#include <model/netdata.h>
#include <tools/searchparams.h>
#include <tools/vectorrows.h>

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <optional>

/// Lists of elements for files and pipes, without a window: what a search finds, and properties beside one another.
/// Elements stand in the order in which people count (P_2 before P_10).
class ElementQuery {
  Q_DECLARE_TR_FUNCTIONS(ElementQuery)
public:
  struct Request {
    QStringList properties; ///< a column each; at least one
    QString type;           ///< code or word of an element type, or a pattern of them; empty for all
    QStringList elements;   ///< names of those that are listed, where isRestricted
    bool isRestricted = false;
  };

  struct Found {
    QStringList names;          ///< each element once
    VectorRows::Exported table; ///< a row a property that was found
    QString error;              ///< why the search could not be finished; empty when it was
  };

  struct Criteria {
    SearchParams params;
    bool listsProperties = false; ///< rather than the names of the elements alone
  };

  explicit ElementQuery(NetData &net)
      : m_net(net) {}

  Found search(const SearchParams &params);
  /// The elements that have one of the properties at least, values in the display units. Nothing, with the reason, when no
  /// element of the network has one of the properties.
  std::optional<VectorRows::Exported> properties(const Request &request, QString *reason);

  /// The criteria of a search, one a text: "name=", "regex=" (of the name), "type=", "prop=", "value=" (with "@ELE" in it a
  /// formula), "formula="; without such a word the text is part of the name. A value without a property is looked for in all
  /// of them. Nothing, with the reason, when another word stands before the first "=".
  static std::optional<Criteria> criteria(const QStringList &texts, QString *reason);

private:
  NetData &m_net;
};
