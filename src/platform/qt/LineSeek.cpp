#include "platform/qt/LineSeek.h"

#include "platform/qt/LineList.h"
#include "platform/qt/Look.h"

#include <QKeyEvent>

#include <chrono>

using namespace std::chrono_literals;

LineSeek::LineSeek(LineList &list, Find find) : QLabel(list.viewport()), m_list(list), m_find(std::move(find)) {
  setObjectName(QStringLiteral("Suchtext"));
  setTextFormat(Qt::PlainText);
  setMargin(4);
  setFrameShape(StyledPanel);
  Look::setGround(this, QColor(Qt::white));
  setAttribute(Qt::WA_TransparentForMouseEvents);
  hide();
  m_pause.setSingleShot(true);
  m_pause.setInterval(1s);
  m_pause.callOnTimeout([this] {
    if (m_find(m_text).second)
      take();
  });
  list.installEventFilter(this);
}

bool LineSeek::eventFilter(QObject *, QEvent *event) {
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
