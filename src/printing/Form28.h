#pragma once

#include "platform/print/Printers.h"
#include "platform/qt/Screen.h"

#include <memory>

namespace Ui {
class Form28;
}

/// The choice of the printer for this run.
///
/// `List1` names all printers; `Command2` makes the chosen one current and closes, `Command1` closes without change.
class Form28 : public Screen {
  Q_OBJECT

public:
  Form28(Desk &desk, Printers &printers);
  ~Form28() override;

  void becomeActive() override;

private:
  void takeChosen();

  std::unique_ptr<Ui::Form28> ui;
  Printers &m_printers;
  QList<Printer> m_listed;
};
