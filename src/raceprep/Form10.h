#pragma once

#include "platform/qt/Screen.h"

#include <memory>

struct Store;
namespace Ui {
class Form10;
}

/// The class table of the open race.
///
/// `List1` shows the classes; a chosen line, or a number typed in `Text5`, is the class being edited: `Text6` its name,
/// `Text1` and `Text2` its first and last birth year. `Command7` brings the table to normal form, as leaving any field
/// does. `Command5` deletes the chosen class. `Command2` asks with `Command3` and `Command4` whether to load the
/// built-in table. Closing saves the race.
class Form10 : public Screen {
  Q_OBJECT

public:
  Form10(Desk &desk, Store &store);
  ~Form10() override;

  void becomeActive() override;

protected:
  void closing() override;

private:
  void connectFields();
  void connectButtons();
  void refresh();
  void chooseLine(int line);
  void numberChanged();
  void nameChanged();
  void storeYear(bool first);
  void showClass(int klasse);
  void enableFields(bool enabled);
  void deleteChosen();
  void askForStandard(bool ask);
  void loadStandard();
  int shownClass() const;

  Store &m_store;
  std::unique_ptr<Ui::Form10> ui;
};
