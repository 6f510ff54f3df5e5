#pragma once

#include "core/Store.h"
#include "platform/qt/Screen.h"

#include <memory>

class QComboBox;

namespace Ui {
class Form3;
}

/// "Datenbank der Sportler": the register of athletes, record by record. Each field is stored when the focus leaves it;
/// there is no button for it, and none to delete: an athlete without a name is left out of every list.
///
/// Text1 index, goes to the record at each key stroke · Text2 name · Text3 federation number · Option1, Option2 sex ·
/// Text4 birth date · Combo1 to Combo3 clubs, "?" = none · Text5 points · List1 all athletes · Command2 "-" and
/// Command3 "+" the athlete before and behind, at the end a new one · Command4 "neu" the last one · Command1 closes.
class Form3 : public Screen {
  Q_OBJECT

public:
  /// Opens on the last athlete.
  Form3(Desk &desk, Store &store);
  ~Form3() override;

  /// Goes to a record, held to the register.
  void showRecord(qint64 record);
  /// Starts a new entry: goes to the first record without a name and puts the text into the name field, which gets the
  /// focus.
  /// Quirk: new entry renames the last athlete. It lands on him if no record is without a name.
  void startNewEntry(const QString &name);
  /// Shows what a table of entries has brought.
  void showEntered();

Q_SIGNALS:
  /// A table of entries is to be read.
  void entriesRequested();

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  void fillClubs();
  void connectNavigation();
  void connectFields();
  void connectClub(QComboBox *combo, qint16 LaeuferSatz::*club);
  LaeuferSatz change(const std::function<void(LaeuferSatz &)> &change);
  void storePoints();
  void setSex(int sex);
  void LaeuferZeigen(int n);
  void showSex(int sex);
  void fillList();

  Store &m_store;
  std::unique_ptr<Ui::Form3> ui;
  /// The record on the screen; what is stored goes there.
  int m_shown = 0;
};
