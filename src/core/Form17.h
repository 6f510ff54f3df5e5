#pragma once

#include "platform/qt/Screen.h"

#include <QTimer>

#include <memory>

namespace Ui {
class Form17;
}

/// "Erinnerung": `List1` tells which athletes of the race just saved lack a sex or a birth date. It stands beside all
/// other screens, blocks none and never takes the focus by itself; `Timer1` brings it to the front every 15 seconds
/// until it is closed.
class Form17 : public Screen {
  Q_OBJECT

public:
  explicit Form17(Desk &desk);
  ~Form17() override;

  /// Shows these lines instead of those before, and the screen if it is not visible yet.
  void remind(const QStringList &lines);

protected:
  void mousePressEvent(QMouseEvent *event) override;
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  void comeForward();

  std::unique_ptr<Ui::Form17> ui;
  QTimer m_timer;
};
