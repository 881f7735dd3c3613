#pragma once

#include <QHeaderView>
#include <QVector>

class QLineEdit;

/// The header of a table with a field below each title, in which a person writes what is asked of the column. What is typed
/// counts once the person pauses; a field that makes no sense says so by a sign and its tip.
class FilterHeader : public QHeaderView {
  Q_OBJECT
public:
  explicit FilterHeader(QWidget *parent = nullptr);

  /// One field for each section.
  void setFilters(const QStringList &texts);
  /// \param fault empty when what stands there makes sense
  void setFault(int section, const QString &fault);
  /// Puts the keyboard into the field of the section.
  void enter(int section);
  QLineEdit *field(int section) const { return m_fields.value(section); }

  /// After the sections have been scrolled.
  void placeFields();

  QSize sizeHint() const override;

signals:
  void entered(int section); ///< the keyboard is in its field
  void filterChanged(int section, const QString &text);
  void left(int section); ///< by Return, Down or Esc: the keyboard is for the rows again

protected:
  void updateGeometries() override;
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  QLineEdit *makeField(int section);
  void offerExamples(QLineEdit &field);
  int fieldHeight() const;

  QVector<QLineEdit *> m_fields; ///< by section
};
