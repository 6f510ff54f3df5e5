#pragma once

#include "platform/WindowPlaces.h"
#include "platform/qt/FieldGuard.h"
#include "platform/qt/HintRenewal.h"

#include <QPointer>
#include <QSize>

#include <functional>

class Screen;

/// What all screens of one program share: the guard of the fields, the screen that is active, the places of the
/// windows, and the hints at their feet.
class Desk : public QObject {
  Q_OBJECT

public:
  /// `savePlaces` writes the table of places to the disk.
  Desk(WindowPlaces &places, std::function<void()> savePlaces);

  FieldGuard &guard() { return m_guard; }
  WindowPlaces &places() { return m_places; }
  void savePlaces() { m_savePlaces(); }

  /// What was typed into a field that has not been left, with the field and whom it is about; empty if nothing was.
  QString openInput() const;
  /// How much larger the frame of a window is than the window, as far as it is known yet.
  QSize frame() const { return m_frame; }
  void setFrame(QSize frame) { m_frame = frame; }

  /// Shows a screen on top and makes it active.
  void show(Screen &screen);
  /// Shows a screen on top and leaves the keyboard, and all that hangs on it, where it is.
  static void showBeside(Screen &screen);
  /// Makes a visible screen active: fields of other screens are left first, then its activation steps run, once for
  /// each change from another screen.
  void activate(Screen &screen);

  /// What the quiet line at the foot of every screen tells first, also of those that open later; empty = nothing.
  void setHint(const QString &text);
  const QString &hint() const { return m_hint; }
  HintRenewal &hints() { return m_hints; }

Q_SIGNALS:
  void hintChanged();

private:
  FieldGuard m_guard;
  WindowPlaces &m_places;
  std::function<void()> m_savePlaces;
  QPointer<Screen> m_active;
  QString m_hint;
  HintRenewal m_hints;
  QSize m_frame{4, 28};
};
