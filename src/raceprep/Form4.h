#pragma once

#include "platform/qt/Screen.h"

#include <memory>

class Printers;
class QPushButton;
struct Store;
namespace Ui {
class Form4;
}

/// "Veranstaltungen / Rennen", the hub of all work on races; the only place where a race is opened.
///
/// `Text1` number of the race, and each change of it opens that race at once; `Text2` its name; `Command2` "-",
/// `Command3` "+" the race before and behind, beyond the last a new one; `Command7` stores the name, `Command9`
/// deletes, `Command16` copies; `List1` all races, the highest number first. `Command4` to `Command6`, `Command8`,
/// `Command10` to `Command15`, `Command17`, `Command18` open the screens of the work on the race. `Command1` back to
/// the menu.
class Form4 : public Screen {
  Q_OBJECT

public:
  Form4(Desk &desk, Store &store, Printers &printers);
  ~Form4() override;

  void becomeActive() override;
  /// A name that was typed and not "eingetragen".
  QString waiting() const override;
  /// Puts a number into `Text1`, which opens that race.
  void chooseRace(int number);
  /// The name as it stands in `Text2`.
  QString typedName() const;
  void refillRaces();
  /// After the open race has been deleted: the list anew, and the word "leer" as its name.
  void showDeleted();

Q_SIGNALS:
  /// Another screen is to be opened, by its object name.
  void openRequested(const QString &screen);

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  /// A button that opens a screen.
  struct Function {
    QPushButton *button;
    QString screen;
    /// Only with a name in `Text2`.
    bool needsName;
    /// Locked from a click into `Text2` until the name is stored.
    bool locked;
  };

  QList<Function> functions() const;
  void connectRegister();
  void connectFunction(const Function &function);
  void openRace();
  void nextRace();
  void enterName();
  void askDeletion();
  bool isReady(const Function &function) const;
  void lockFunctions(bool locked);

  std::unique_ptr<Ui::Form4> ui;
  Store &m_store;
  Printers &m_printers;
  /// What `Text2` showed before somebody typed into it.
  QString m_shownName;
};
