#pragma once

#include "platform/Tabelle.h"
#include "platform/qt/Screen.h"

#include <memory>

class LineList;
class QLineEdit;
struct Store;
namespace Ui {
class Form11;
}

/// Teams and groups of the open race, two lists of 100 names that work alike.
///
/// `Text1` is the number of a team, held to 1 to 100, and `Text2` its name, stored with every key stroke; Enter goes
/// from number to name and from the name to the next number. `List1` shows all teams and is only for reading. `Text4`,
/// `Text3` and `List2` are the same for groups. Closing saves the race.
class Form11 : public Screen {
  Q_OBJECT

public:
  Form11(Desk &desk, Store &store);
  ~Form11() override;

protected:
  void closing() override;

private:
  using Names = Tabelle<QString, 0, 100>;
  struct Side {
    QLineEdit *number, *name;
    LineList *list;
    Names &names;
  };
  void connectSide(const Side &side);

  Store &m_store;
  std::unique_ptr<Ui::Form11> ui;
};
