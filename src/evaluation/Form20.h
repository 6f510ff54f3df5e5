#pragma once

#include "core/Store.h"
#include "platform/print/Printers.h"
#include "platform/qt/Screen.h"

#include <memory>

namespace Ui {
class Form20;
}
struct CupChoice;

/// Scores a series of races as a cup.
///
/// In `List1` the races are marked. `Text1` and `Text2` edit the points of a place, `List2` shows the table; `Text3` is
/// the number of results that are struck, `Text4` the name of the cup. `Command1` evaluates: `Label8` and `List3` show
/// the persons, `List5` the result, the hidden `List4` its order. `Command2` prints, with `Check1` each class on a page
/// of its own; `Command3` closes. The marks, the table and the name are kept in Cup.dat.
class Form20 : public Screen {
  Q_OBJECT

public:
  Form20(Desk &desk, Store &store, Printers &printers);
  ~Form20() override;

  void becomeActive() override;
  QList<SavedFile> unsaved() const override;

Q_SIGNALS:
  /// Form13 is to be shown as a sign of work, and taken away again.
  void workBegun();
  void workEnded();

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;
  void closing() override;

private:
  void load();
  CupChoice choice() const;
  void connectControls();
  void marksChanged();
  void placeChanged();
  void pointsChanged();
  void nextPlace();
  void evaluate();
  void print();
  void lockPrint();
  /// The place that is edited, 1 to 100.
  int place() const;

  Store &m_store;
  Printers &m_printers;
  std::unique_ptr<Ui::Form20> ui;
  /// The race that is open again after closing.
  int m_openRace;
  QByteArray m_atOpening;
};
