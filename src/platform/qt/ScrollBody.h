#pragma once

#include <QScrollArea>

class QVBoxLayout;

/// Holds all rows of a form but the last, the foot with the closing button. It asks for all the room that they need, as
/// if it were not there; only where the monitor is too small for that does it ask for less and scroll.
class ScrollBody : public QScrollArea {
  Q_OBJECT

public:
  /// Takes the rows out of the form and their place in it.
  explicit ScrollBody(QVBoxLayout &form);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  QSize room() const;

  QVBoxLayout &m_form;
};
