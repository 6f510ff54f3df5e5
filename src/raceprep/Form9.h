#pragma once

#include "platform/qt/Screen.h"

#include <memory>

struct Store;
namespace Ui {
class Form9;
}

/// "Veranstaltung löschen": `Label1` the race, `Label2` the question; `Command1` deletes, `Command2` and `Command3`
/// only close.
class Form9 : public Screen {
  Q_OBJECT

public:
  Form9(Desk &desk, Store &store);
  ~Form9() override;

Q_SIGNALS:
  /// The open race has been deleted: the list of races must be filled anew.
  void raceDeleted();

private:
  std::unique_ptr<Ui::Form9> ui;
};
