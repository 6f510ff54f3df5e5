#include "platform/qt/LineSeek.h"

#include "platform/qt/LineList.h"
#include "platform/qt/Look.h"

#include <QApplication>
#include <QKeyEvent>

#include <chrono>

using namespace std::chrono_literals;

LineSeek::LineSeek(LineList &list, Find find) : QLabel(list.viewport()), m_list(list), m_find(std::move(find)) {
  setObjectName(QStringLiteral("Suchtext"));
  setTextFormat(Qt::PlainText);
  setMargin(4);
  setFrameShape(StyledPanel);
  Look::setGround(this, palette().color(QPalette::Base));
  setAttribute(Qt::WA_TransparentForMouseEvents);
  hide();
  m_pause.setSingleShot(true);
  m_pause.setInterval(1s);
  m_pause.callOnTimeout([this] {
    if (m_find(m_text).second)
      takeByPause();
  });
  list.installEventFilter(this);
}

bool LineSeek::eventFilter(QObject *watched, QEvent *event) {
  if (watched == m_arrivedAt)
    return isLateReturn(*event);
  if (event->type() == QEvent::FocusOut)
    grow({});
  return event->type() == QEvent::KeyPress && takeKey(static_cast<QKeyEvent &>(*event));
}

bool LineSeek::takeKey(const QKeyEvent &key) {
  const bool growing = !m_text.isEmpty();
  const QString typed = key.modifiers() & (Qt::ControlModifier | Qt::AltModifier) ? QString() : key.text();
  if (!typed.isEmpty() && typed[0].isPrint() && (growing || typed != QStringLiteral(" "))) {
    grow(m_text + typed);
    return true;
  }
  if (growing && key.key() == Qt::Key_Backspace) {
    grow(m_text.chopped(1));
    return true;
  }
  if (growing && (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter)) {
    take();
    return true;
  }
  grow({});
  return growing && key.key() == Qt::Key_Escape;
}

void LineSeek::takeByPause() {
  take();
  m_arrivedAt = QApplication::focusWidget();
  if (m_arrivedAt == &m_list)
    m_arrivedAt = nullptr;
  if (m_arrivedAt)
    m_arrivedAt->installEventFilter(this);
}

// The hand that typed the text is still on its way to the Return key.
bool LineSeek::isLateReturn(const QEvent &event) {
  if (event.type() != QEvent::KeyPress && event.type() != QEvent::FocusOut)
    return false;
  m_arrivedAt->removeEventFilter(this);
  m_arrivedAt = nullptr;
  if (event.type() != QEvent::KeyPress)
    return false;
  const int key = static_cast<const QKeyEvent &>(event).key();
  return key == Qt::Key_Return || key == Qt::Key_Enter;
}

void LineSeek::grow(const QString &text) {
  m_text = text;
  m_pause.start();
  tell(text);
}

void LineSeek::take() {
  const QString text = m_text;
  grow({});
  if (const int line = m_find(text).first; line >= 0)
    m_list.pick(line);
  else
    tell(QStringLiteral("„%1“ steht nicht in der Liste").arg(text));
}

void LineSeek::tell(const QString &text) {
  setText(text);
  setAccessibleDescription(text);
  adjustSize();
  move(parentWidget()->width() - width() - 4, 4);
  setVisible(!text.isEmpty());
}
