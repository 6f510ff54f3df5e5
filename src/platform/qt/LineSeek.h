#pragma once

#include <QLabel>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <utility>

class LineList;

/// What is typed while a list has the focus stands for one of its lines: it is shown while it grows, taken by Enter, or
/// by a pause of a second where it can only mean one, and forgotten by Esc. The keys reach nothing else, nor does an
/// Enter that comes after the pause has taken the text.
class LineSeek : public QLabel {
  Q_OBJECT

public:
  /// The line that a text means, -1 = none, and whether it can mean no other, also when it grows.
  using Find = std::function<std::pair<int, bool>(const QString &)>;
  LineSeek(LineList &list, Find find);

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  bool takeKey(const QKeyEvent &key);
  void takeByPause();
  bool isLateReturn(const QEvent &event);
  void grow(const QString &text);
  void take();
  void tell(const QString &text);

  LineList &m_list;
  Find m_find;
  QString m_text;
  QTimer m_pause;
  QPointer<QWidget> m_arrivedAt;
};
