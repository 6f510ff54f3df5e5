#pragma once

#include "platform/qt/Screen.h"

#include <memory>

class QCheckBox;
class QComboBox;
struct LaeuferSatz;
struct Store;
struct TeilnehmerZeile;
namespace Ui {
class Form6;
}

/// Start numbers of the open race, and with them club, team, group and flags of each participant.
///
/// A line of `List1` shows its participant: `Label2` name on the colour of the sex, `Label6` table row, `Label8` birth
/// year, `Label16` class, `Label13` exact class. `Text1` is the start number, red while it is one in use; `Combo1` the
/// club, `Combo3` the team, `Combo4` the group; `Check1` guest, `Check2` paid, `Check3` boarder. Each is stored when
/// the focus leaves it; `Command5` only takes the focus.
///
/// Three operations, each with "LOS !" and "nein": `Command2` draws numbers for all (`Command3`, `Command4`) with the
/// reserve of `Text2`; `Command9` numbers the class in `Combo2` from `Text3` on (`Command11`, `Command10`); `Command6`
/// deletes all numbers (`Command7`, `Command8`). `List2` is the hidden work list. Closing saves the race.
class Form6 : public Screen {
  Q_OBJECT

public:
  Form6(Desk &desk, Store &store);
  ~Form6() override;

  /// For the participant list: hides the class, which may not be current then, and shows the participant of a table row
  /// as a click would. Where the list does not know the row it is filled anew; nobody is selected if that does not
  /// help.
  void chooseParticipant(int row);
  QString subject() const override;
  /// For the participant list after it deleted a row, since all rows behind it have moved up: back to nobody selected,
  /// and `List1` anew.
  void rowsMoved();

protected:
  void closing() override;

private:
  void fillCombos();
  void connectParticipant();
  void connectDraw();
  void connectClassRun();
  void connectDeletion();
  void storeCombo(QComboBox *combo, const std::function<void(TeilnehmerZeile &, int)> &store);
  void storeCheck(QCheckBox *check, const std::function<void(TeilnehmerZeile &, bool)> &store);

  void fillList();
  void showLine(int line);
  void showParticipant(int row);
  void showAthlete(const LaeuferSatz &athlete);
  void fillClubs(const LaeuferSatz &athlete, int position);
  QString clubName(int club);
  void showFields(bool shown);
  void showNobody();
  void showNumberIs(QColor ground, const QString &words);
  void storeNumber();

  void setShown(std::initializer_list<QWidget *> controls, bool shown);
  void offerDraw(bool offer);
  void offerClasses();
  void endClassRun();
  void offerDeletion(bool offer);
  void draw();
  void numberClass();
  void deleteNumbers();

  Store &m_store;
  std::unique_ptr<Ui::Form6> ui;
  bool m_named = true; // the participant shown has a name, be it one that shows nothing
  int m_row = 0;       // table row of the participant shown, as in Label6; 0 = nobody
};
