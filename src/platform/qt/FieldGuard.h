#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>

#include <functional>

class QWidget;

/// What a field shows, in words: its text, its choice, or "ja" and "nein" of a check box; empty for anything else.
QString shownIn(const QWidget *field);

/// The one mechanism of leaving and entering fields. A field is left when another field of this program gets the focus,
/// or when its window closes or is hidden by code: once for each departure, before the click that caused it takes
/// effect, and never for a popup, another program or a window that raises itself.
class FieldGuard : public QObject {
  Q_OBJECT

public:
  FieldGuard();

  /// Runs `action` each time the focus leaves `field`; a field keeps one action.
  void onLeave(QWidget *field, std::function<void()> action);
  /// Runs `action` each time the focus comes to `field` from elsewhere in the program.
  void onEnter(QWidget *field, std::function<void()> action);
  /// Leaves the field that has the focus if it belongs to `window`.
  void flush(const QWidget *window);
  /// Leaves the field that has the focus if it belongs to another window than `window`.
  void flushOthers(const QWidget *window);
  /// The control that has the focus, or will have it on return from another program.
  QWidget *field() const { return m_leaving ? m_leaving : m_field; }
  /// Whether it shows something else than when it was entered, by the operator's hand.
  bool isFieldChanged() const;
  bool storesOnLeaving(QWidget *field) const { return m_leave.contains(field); }

private:
  void focusMoved(QWidget *now);
  void moveTo(QWidget *field);
  QWidget *fieldOf(QWidget *widget) const;
  void forgetWhenGone(QWidget *field);

  /// The field that has the focus, and one whose leaving has not been done; that stays if the action fails, as its text
  /// is then nowhere else.
  QPointer<QWidget> m_field, m_leaving;
  QString m_shownAtEntry;
  QHash<QWidget *, std::function<void()>> m_leave, m_enter;
};
