#pragma once

#include <QLabel>

/// A caption of one line that never asks for room: what does not fit is drawn with "…" at its end, or in the middle by
/// the dynamic property `mitteKuerzen`, and the tool tip then tells the whole text. text() is always the whole text.
class ElidedLabel : public QLabel {
  Q_OBJECT

public:
  using QLabel::QLabel;
  QSize minimumSizeHint() const override;

protected:
  bool event(QEvent *event) override;
  void paintEvent(QPaintEvent *event) override;

private:
  QString shown() const;
};
