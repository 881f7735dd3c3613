#pragma once

#include <base/filestamp.h>
#include <model/selection.h>
#include <tools/layeredits.h>
#include <view/netviscontrol.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QRectF>
#include <QSet>
#include <QString>

#include <optional>

class QJsonObject;

/// What comes back when a case is opened again.
struct Session {
  Q_DECLARE_TR_FUNCTIONS(Session)
public:
  static constexpr int MostNames = 20000;                ///< of the selection, and of edited layers; more are not kept
  static constexpr qint64 LargestText = qint64(8) << 20; ///< bytes of a session that is written

  QByteArray geometry; ///< of the window, as the toolkit says it
  QByteArray docks;
  QRectF view; ///< in the network's coordinates; null for all of it
  Selection selection;
  QString current;
  QString layerProperty;
  QSet<QString> hiddenLayers;
  NetVisControl::OwnStyle style;
  QString styleName;      ///< of the style in use; empty where there is none, or it was changed since
  FileStamp settingsFile; ///< of the case, beside which the style was chosen
  FileStamp labelsFile;
  LayerValues layerEdits; ///< that were not saved

  /// \param caseFolder canonical
  QByteArray toJson(const QString &caseFolder) const;
  /// Nothing, with the reason, when the text is no session of that case; what is too much or of no sense is left out. A
  /// reason beside a session tells what is not used of it.
  static std::optional<Session> fromJson(const QByteArray &text, const QString &caseFolder, QString *reason);

private:
  void takeWindow(const QJsonObject &window, QString *reason);
};
