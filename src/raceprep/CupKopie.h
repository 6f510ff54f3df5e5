#pragma once

#include "platform/qt/Screen.h"

#include <functional>
#include <memory>

struct Store;
namespace Ui {
class CupKopie;
}

/// Asks for the number of a copy of the open race, beside the race register.
///
/// `Label1` and `Label2` tell what is made, `Text2` is the number of the copy, `Check1` whether start numbers, times
/// and statuses go along. `Command16` makes the copy and closes, `Command1` closes without one.
class CupKopie : public Screen {
  Q_OBJECT

public:
  /// `raceText` gives the text of the race's name as it stands on the race register when the copy is made.
  CupKopie(Desk &desk, Store &store, std::function<QString()> raceText);
  ~CupKopie() override;

Q_SIGNALS:
  /// The copy is on the disk: the list of races must be filled anew, which also loads the open race's files again.
  void copied();

private:
  void makeCopy();

  Store &m_store;
  std::function<QString()> m_raceText;
  std::unique_ptr<Ui::CupKopie> ui;
};
