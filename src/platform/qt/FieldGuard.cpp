#include "platform/qt/FieldGuard.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QWidget>

QString shownIn(const QWidget *field) {
  if (const auto *edit = qobject_cast<const QLineEdit *>(field))
    return edit->text();
  if (const auto *combo = qobject_cast<const QComboBox *>(field))
    return combo->currentText();
  const auto *box = qobject_cast<const QCheckBox *>(field);
  return box ? box->isChecked() ? QStringLiteral("ja") : QStringLiteral("nein") : QString();
}

FieldGuard::FieldGuard() {
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { focusMoved(now); });
}

void FieldGuard::onLeave(QWidget *field, std::function<void()> action) {
  m_leave[field] = std::move(action);
  forgetWhenGone(field);
}

void FieldGuard::onEnter(QWidget *field, std::function<void()> action) {
  m_enter[field] = std::move(action);
  forgetWhenGone(field);
}

// A text box may be filled by code while it has the focus; it knows by itself whether it was typed into.
bool FieldGuard::isFieldChanged() const {
  if (const auto *edit = qobject_cast<QLineEdit *>(field()))
    return edit->isModified();
  return shownIn(field()) != m_shownAtEntry;
}

void FieldGuard::flush(const QWidget *window) {
  if (m_field && m_field->window() == window)
    moveTo(nullptr);
}

void FieldGuard::flushOthers(const QWidget *window) {
  if (m_field && m_field->window() != window)
    moveTo(nullptr);
}

void FieldGuard::focusMoved(QWidget *now) {
  if (!now) // another program, minimised, or being hidden
    return;
  const QWidget *window = now->window();
  if (window->windowType() == Qt::Popup || window->testAttribute(Qt::WA_ShowWithoutActivating))
    return;
  moveTo(fieldOf(now));
}

// A combo or list may give the focus to a child of its own.
QWidget *FieldGuard::fieldOf(QWidget *widget) const {
  for (auto *candidate = widget; candidate; candidate = candidate->parentWidget())
    if (m_leave.contains(candidate) || m_enter.contains(candidate))
      return candidate;
  return widget;
}

// The new field is remembered before anything acts, so that an action which moves the focus again cannot run twice.
void FieldGuard::moveTo(QWidget *field) {
  if (field == m_field)
    return;
  QWidget *const left = m_field;
  m_field = field;
  m_leaving = left;
  if (const auto leave = m_leave.value(left))
    leave();
  if (auto *edit = qobject_cast<QLineEdit *>(m_leaving))
    edit->setModified(false);
  m_leaving = nullptr;
  m_shownAtEntry = shownIn(m_field);
  if (field && m_field == field)
    if (const auto enter = m_enter.value(field))
      enter();
}

void FieldGuard::forgetWhenGone(QWidget *field) {
  connect(field, &QObject::destroyed, this, [this, field] {
    m_leave.remove(field);
    m_enter.remove(field);
  });
}
