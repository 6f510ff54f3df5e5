#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>

#include <functional>

class QWidget;

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
  QWidget *field() const { return m_field; }
  bool storesOnLeaving(QWidget *field) const { return m_leave.contains(field); }

private:
  void focusMoved(QWidget *now);
  void moveTo(QWidget *field);
  QWidget *fieldOf(QWidget *widget) const;
  void forgetWhenGone(QWidget *field);

  QPointer<QWidget> m_field;
  QHash<QWidget *, std::function<void()>> m_leave, m_enter;
};
