#pragma once

#include "core/Store.h"
#include "platform/qt/Screen.h"

#include <memory>

namespace Ui {
class Form5;
}

/// "Teilnehmerliste des aktuellen Rennens": takes athletes from the register into the open race.
///
/// Label1 race · List1 the register, Text1 filters it by the beginning of the name (Enter), Command4 shows all ·
/// Label4, Label6, Label8, Label10, Label11, Label12 the athlete clicked: name, record (hidden), birth date, clubs,
/// their count and the last slot (both hidden) · Command2 adds him · Command5 new entry in the register · List2 the
/// participants, Text2 and Command6 filter them, Combo1 chooses their order · Label5, Label7 the participant clicked:
/// name, table row · Command3 deletes him · Command1 closes. Enter in a list does what a double click does.
class Form5 : public Screen {
  Q_OBJECT

public:
  Form5(Desk &desk, Store &store);
  ~Form5() override;

  /// Fills the participants anew, and the register if it is filtered.
  void becomeActive() override;
  /// Shows what a table of entries has brought.
  void showEntered();

Q_SIGNALS:
  /// A double click on an athlete: the register is to open on this record.
  void athleteChosen(int record);
  /// A double click on a participant: the start numbers are to open on this table row.
  void participantChosen(int row);
  /// The register is to open for a new entry of this name.
  void newEntryRequested(const QString &name);
  /// A table of entries is to be read.
  void entriesRequested();
  /// A participant was deleted and the rows behind him moved up.
  void participantDeleted();

protected:
  void closing() override;
  void closeEvent(QCloseEvent *event) override;

private:
  void connectAthletes();
  void connectParticipants();
  void connectKeys();
  void fillAthletes();
  void fillParticipants();
  void showAthlete(int record);
  void showParticipant(const QString &line);
  void openAthlete();
  void openParticipant();
  void add();
  void remove();

  Store &m_store;
  std::unique_ptr<Ui::Form5> ui;
};
