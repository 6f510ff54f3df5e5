#pragma once

#include "platform/qt/Screen.h"

#include <memory>

class QLineEdit;

namespace Ui {
class Form18;
}

/// "Hilfszeitnehmung / Zeitdifferenz": the difference of two readings of a running clock, carried over as the first-run
/// time of the participant selected on the timing screen. `Text1` start, `Text6` finish, in either order; Enter leads
/// on and fills `Text2`, the difference; `Command4` carries it over and closes.
class Form18 : public Screen {
  Q_OBJECT

public:
  explicit Form18(Desk &desk);
  ~Form18() override;

  void becomeActive() override;

Q_SIGNALS:
  /// The difference in seconds, as plain text.
  void differenceTaken(const QString &time);

private:
  void subtract();
  void carryOver();

  std::unique_ptr<Ui::Form18> ui;
};
