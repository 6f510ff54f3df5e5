#pragma once

#include "exchange/EntryColumns.h"
#include "exchange/qt/EntryModel.h"
#include "platform/qt/Screen.h"

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QProgressBar;
class QPushButton;
class QTableView;

/// "Meldungen einlesen": shows a table of entries beside the register, lets the operator say what its columns are and
/// what is to become of doubtful lines and unknown clubs, and takes it over. Esc and "abbrechen" leave everything as it
/// was.
class EntryScreen : public Screen {
  Q_OBJECT

public:
  /// Lets the operator choose a file and reads it; nothing if he did not, or if it is no table, which he is told.
  static std::optional<Table> chosenTable(QWidget *parent);

  /// `race`: the persons are entered into the open race as well.
  EntryScreen(Desk &desk, Store &store, Table table, bool race);

Q_SIGNALS:
  /// The register, and with `race` the race, have changed.
  void takenOver();

protected:
  void keyPressEvent(QKeyEvent *event) override;

private:
  QWidget *makeColumns();
  QWidget *makeChoices();
  QWidget *makeButtons();
  QPushButton *addChoice(QLayout *row, const char *name, const QString &caption, Choice choice);
  void recognise();
  EntryPlan makePlan();
  /// Shows how far a work that begins now is, as soon as it takes longer than a moment.
  EntryProgress progressFromNow();
  void chooseForSelected(Choice choice);
  void fillClubs();
  void answerClub();
  void makeAllClubs();
  void showLine();
  void showCount();
  void take();
  QList<int> selectedLines() const;
  QString openClub() const;

  Store &m_store;
  const Table m_table;
  Columns m_columns;
  const bool m_race;
  EntryModel m_model;
  QCheckBox *m_heading;
  QList<QComboBox *> m_kinds;
  QTableView *m_view;
  QLabel *m_line, *m_count;
  /// Shown while a work takes longer than a moment.
  QProgressBar *m_progress;
  QList<QPushButton *> m_choices;
  QComboBox *m_club;
  QPushButton *m_makeAll, *m_take;
};
