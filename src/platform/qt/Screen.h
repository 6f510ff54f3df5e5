#pragma once

#include "platform/Files.h"
#include "platform/Hint.h"

#include <QHash>
#include <QWidget>

#include <functional>
#include <optional>

class Desk;
class HintLine;
class QAbstractButton;
class QKeySequence;
class QLineEdit;

/// Base of all screens, which are top-level windows. It does for each of them: the window's place in the table of
/// places and its size, scrolling on small monitors, storing a field when the focus leaves it (see FieldGuard), Enter
/// and the blank key, the order of closing, the wheel that changes no combo without the focus, the hint line, and sizes
/// that follow the font.
///
/// A screen is made anew each time it opens and destroyed after it has closed; who opens which is known to the roof
/// alone.
class Screen : public QWidget {
  Q_OBJECT

public:
  /// `name` becomes the object name; `row` is the row of the table of places, 0 = none.
  Screen(Desk &desk, const QString &name, int row);

  /// Steps that run each time the screen becomes active: at opening, when a screen opened from it closes, when the
  /// operator comes to it from another screen beside it. Never on return from another program or from a popup.
  virtual void becomeActive() {}

  /// The files that the screen would write if it closed now and that lie neither in the store nor on the disk.
  virtual QList<SavedFile> unsaved() const { return {}; }
  /// What was typed and left and waits for its button, a line each as for a person; empty if nothing does.
  virtual QString waiting() const { return {}; }
  /// Whom its fields are about, as "Nr. 28"; empty where the title says it.
  virtual QString subject() const { return {}; }

  /// Fills the line at the foot, behind what the desk has for every screen, and marks the controls that the hints are
  /// about.
  void showHints(const QList<Hint> &hints);

  /// Shows the screen, also one that the operator has made an icon.
  void comeBack();
  /// A screen opens at the size and place where it was left, as far as the monitor holds it, whatever the window system
  /// would like.
  void setVisible(bool visible) override;

Q_SIGNALS:
  /// The closing steps have run; the roof shows the opener again.
  void closed();

protected:
  /// To be called once by the constructor, after setupUi. Reads the dynamic properties of the controls:
  /// `schriftProzent` (font size in percent of the application's), `zeichen` (width in digits), `leise` (a pale
  /// caption).
  void setUp();
  Desk &desk() { return m_desk; }

  void onLeave(QWidget *field, std::function<void()> action);
  void onEnter(QWidget *field, std::function<void()> action);
  /// What Enter does in a control that has the focus. On buttons it presses them without this.
  void onReturn(QWidget *control, std::function<void()> action);

  /// What a key does wherever the focus is on this screen.
  void onKey(const QKeySequence &key, std::function<void()> action);
  /// Presses a button as a person does: it takes the focus, so that the field that had it is left first. One that
  /// cannot be pressed is not.
  static void press(QAbstractButton *button);

  /// Puts the focus into a field as Tab does: what is typed next takes the place of what is there.
  static void enterField(QLineEdit *field);

  /// Disables or hides a control; if it has the focus, that goes to `instead` first, so that no other field is entered
  /// and left by it.
  static void setControlEnabled(QWidget *control, bool enabled, QWidget *instead);
  static void setControlVisible(QWidget *control, bool visible, QWidget *instead);

  /// What the screen does when it closes, after the focused field was left and the place was written to TopLeft.dat.
  virtual void closing() {}

  void closeEvent(QCloseEvent *event) override;
  void hideEvent(QHideEvent *event) override;
  bool event(QEvent *event) override;
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  void nameFields();
  void makeFoot();
  void fillFoot();
  void markControls(bool warned);
  void takeSize();
  void takePlace();
  void noteWhereItIs();
  void storePlace();
  void selectOnEntry(QLineEdit &field, const QEvent &event);
  bool pressReturn(QObject *watched);

  Desk &m_desk;
  int m_row;
  QHash<QObject *, std::function<void()>> m_return;
  HintLine *m_foot = nullptr;
  QList<Hint> m_hints;
  bool m_placed = false;
  std::optional<QPoint> m_leftAt; // of the frame; nothing before the first hiding
  QSize m_ownSize;                // that it opened with
  QObject *m_pressed = nullptr;   // the field that a press has just brought the focus to
};
