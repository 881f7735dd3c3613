#pragma once

#include <QLineEdit>

class NetData;
class QCompleter;
class QStringListModel;
class QTimer;

/// A field for the name of an element, or a part of it. It offers names in which the text is; Return goes to the one that is
/// marked in the list, or to the first.
class ElementField : public QLineEdit {
  Q_OBJECT
public:
  explicit ElementField(const NetData &net, QWidget *parent = nullptr);

signals:
  void elementWanted(const QString &name);
  void told(const QString &text); ///< why Return went nowhere
  void left();                    ///< by Esc

protected:
  void keyPressEvent(QKeyEvent *event) override;

private:
  void offer();
  void go();

  const NetData &m_net;
  QStringListModel *m_offered;
  QCompleter *m_completer; ///< the field's own would filter once more
  QTimer *m_pause;         ///< a million names are not asked at every letter
};
