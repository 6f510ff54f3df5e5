#pragma once

#include "evaluation/TeamEvaluation.h"
#include "platform/print/Printers.h"
#include "platform/qt/Screen.h"

#include <memory>

namespace Ui {
class Form12;
}

/// Results of clubs, teams and groups of the open race.
///
/// `Label1` is the race. `Check1` to `Check3` choose what is ranked, clubs, teams or groups, which `List1`, `List3` and
/// `List4` show; `Option1` to `Option3` how, `Combo2` of how many times a sum is made, `Combo3` whom it takes in.
/// `Command2` evaluates: `List2` ranks the units, `List5` shows the members of the chosen one in the order of `Combo1`.
/// `Command3` prints on the printer in `Label3`, `Command6` chooses it, `Command1` closes.
class Form12 : public Screen {
  Q_OBJECT

public:
  Form12(Desk &desk, Store &store, Printers &printers);
  ~Form12() override;

  void becomeActive() override;

Q_SIGNALS:
  /// The choice of the printer is wanted.
  void printerRequested();

private:
  void fill();
  void fillCombos();
  void connectControls();
  /// Only one kind of unit is ticked, or none.
  void unitTicked(int kind);
  void evaluate();
  void showMembers(int line);
  void print();
  /// No list is printed that what is chosen no longer fits.
  void lockPrint();
  Wertung wertung() const;
  Einheit einheit() const;
  WertungsArt art() const;

  Store &m_store;
  Printers &m_printers;
  std::unique_ptr<Ui::Form12> ui;
};
