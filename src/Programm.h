#pragma once

#include "core/Store.h"
#include "hints/Hints.h"
#include "platform/print/Printers.h"
#include "platform/qt/Desk.h"
#include "platform/qt/Help.h"

#include <QHash>
#include <QObject>
#include <QPointer>

class Form1;
class Form17;
class Form3;
class Form4;
class Form7;
class Screen;

/// The roof: makes the screens and is the only place that knows which screen opens which.
///
/// A screen is made anew each time it opens and destroyed after it has closed. It either takes the place of its opener,
/// which is hidden until it closes, or stands beside it and closes with it.
class Programm : public QObject {
  Q_OBJECT

public:
  /// The store is started; the screens and the reminder of the saves work on it.
  Programm(Store &store, Printers &printers);
  ~Programm() override;

  /// Shows the menu. Its closing, and nothing else, ends the event loop of the application.
  void start();
  /// What the open screens would write if they closed now, and the note of a field not yet left.
  QList<SavedFile> openWork() const;
  /// What the quiet line at the foot of every screen tells; empty = nothing.
  void showSafetyHint(const QString &text);
  /// What the line at the foot of the menu alone tells besides.
  void showJournalHint(const QString &text);
  /// What renews the other hints; it can be asked to do so at once, or be left without rules.
  HintRenewal &hints() { return m_desk.hints(); }

private:
  using Opening = std::function<void()>;

  QList<Hint> hintsOf(const QString &screen, const ShownValues &shown);

  QHash<QString, Opening> openings();
  void open(const QString &screen);

  void openClubs();
  void openAthletes();
  void openRaceRegister();
  void askDeletion();
  void copyRace();

  void openParticipants();
  Form3 &athletesOnTop(Screen &participants);
  void openNumbersOnTop(Screen &participants, int row);
  void openNumbers();
  void openClassOrder();
  void openTiming();
  void openAuxiliaryTiming(Form7 &timing);
  void openPrinting();
  void openTeamEvaluation();
  void openTitlePageData();
  void openCup();
  void openTimeSum();
  /// What the race register opens and needs no more than its own constructor.
  template <typename S> void openPlain();

  /// A table of entries may be read from `screen`; with `race` into the open race as well.
  template <typename S> void offerEntries(S &screen, bool race);
  template <typename S> void connectWorkSign(S &screen);
  void showResult(Screen &opener, bool open);
  void remind(const QStringList &lines);

  /// Shows `screen` in the place of `opener`.
  template <typename S> S &replace(Screen &opener, S *screen);
  /// Shows `screen` beside `opener`.
  template <typename S> S &beside(Screen &opener, S *screen);
  /// Shows a screen again from which another was opened; the reminder stays in front.
  void comeBackTo(Screen &screen);
  /// The open screen of this kind, if there is one.
  template <typename S> S *shown() const;
  void adopt(Screen &screen);
  void showInPlace(Screen &opener, Screen &screen);
  void showBeside(Screen &opener, Screen &screen);
  void tie(Screen &opener, Screen &screen);

  Store &m_store;
  Printers &m_printers;
  Desk m_desk;
  HintBook m_hintBook{m_store};
  QString m_journalHint;
  Help m_help;
  QHash<QString, Opening> m_openings;
  QPointer<Form1> m_menu;
  QPointer<Form4> m_hub;
  QPointer<Form17> m_reminder;
  QList<QPointer<Screen>> m_screens;
};
