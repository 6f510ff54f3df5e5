#pragma once

#include <QLabel>

/// The quiet line at the foot of a screen. It keeps its room when it is empty, so that nothing moves when it fills; it
/// never takes the focus. Of several hints it shows one, and a click the next; its tool tip and its accessible
/// description hold all.
class HintLine : public QLabel {
  Q_OBJECT

public:
  explicit HintLine(QWidget *parent);

  /// On a screen of `width` pixels; a narrow one gets room for more lines.
  void makeRoom(int width);

  /// All that is to be told now, the most pressing first; nothing leaves the line blank. The one on show stays as long
  /// as it holds, unless a new one goes before it.
  void tell(const QStringList &hints);
  void showNext();

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

protected:
  bool event(QEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void paintEvent(QPaintEvent *event) override;

private:
  void show(int hint);

  QStringList m_hints;
  int m_shown = 0;
  int m_lines = 1;
};
