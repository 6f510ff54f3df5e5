#pragma once

#include "core/Store.h"
#include "platform/qt/Screen.h"
#include "timing/TimingList.h"

#include <array>
#include <memory>

class QComboBox;
class QLineEdit;
class QPushButton;

namespace Ui {
class Form7;
}

/// "Zeitnehmung": times, statuses and points of the open race are typed in here. Pick a line, type the time, Enter,
/// next line. All goes straight into the participant table; the race is saved when the screen closes.
///
/// `List2` shows the participants in the order of `Option1` to `Option5` (the second run's only with two runs); its
/// sorted keys are the logic's own. `Label11` holds the selected row, and every handler takes the row from there.
/// `Label2` name on the colour of the sex, `Label5` start number, `Label14` birth year, `Label16` class, `Label18`
/// guest, `Label19` club, `Label22` team, `Label23` group.
/// First run: `Text1` seconds, `Text2` to `Text4` hours, minutes, seconds, `Combo2` status, `Command4` splits,
/// `Command2` joins. Second run: `Text6`, `Text7` to `Text9`, `Combo1`, `Command1`, `Command6`. `Text5`, `Command5`
/// points. `Check1` the provisional result beside this screen, `Command7` the auxiliary timing, `Command3` closes.
class Form7 : public Screen {
  Q_OBJECT

public:
  Form7(Desk &desk, Store &store);
  ~Form7() override;

  void becomeActive() override;
  QString subject() const override;
  /// Hours, minutes and seconds that were typed and not yet made into a time.
  QString waiting() const override;
  /// Takes a time, as plain text, as the first run of the selected participant, also while the second run is worked on.
  void takeDifference(const QString &difference);

Q_SIGNALS:
  /// The provisional result is to be opened beside this screen, or closed.
  void resultRequested(bool open);
  /// The ranking ran, so the lines of the provisional result are new.
  void resultComputed();
  /// The auxiliary timing is to be opened beside this screen.
  void auxiliaryTimingRequested();

protected:
  void closing() override;

private:
  /// The controls and columns of one run.
  struct RunFields {
    QLineEdit *seconds;
    std::array<QLineEdit *, 3> parts;
    double TeilnehmerZeile::*time;
    /// What the three boxes showed before somebody typed into them.
    QStringList shown;
  };

  void hideUnused();
  QList<QWidget *> secondRunControls() const;
  void connectControls();
  void refillByKey();
  void connectRun(RunFields &run, QPushButton *split, QPushButton *join);
  void connectStatus(QComboBox *combo, int TeilnehmerZeile::*status);

  void refill();
  ListMode mode() const;
  void lineChosen(int line);
  void returnInList();
  void setInputsEnabled(bool enabled);
  void showPerson(const TeilnehmerZeile &participant);
  void showInputs(const TeilnehmerZeile &participant);
  static void showParts(RunFields &run, double time);
  QLineEdit *timeBox() const;
  void focusTime();

  /// The row in `Label11`, which becomes `TnIdx`.
  TeilnehmerZeile &selected();
  void takeTime(const RunFields &run);
  void joinTime(RunFields &run);
  /// Whether the time was taken. If not: a beep, and the box shows the stored one.
  bool store(const RunFields &run, double time);
  void refuse(QLineEdit *field, const QString &before);
  void takePoints();
  void showResult(bool open);

  std::unique_ptr<Ui::Form7> ui;
  Store &m_store;
  RunFields m_run1, m_run2;
};
