#include "platform/qt/Help.h"

#include "platform/qt/HelpWindow.h"

#include <QApplication>
#include <QKeyEvent>

Help::Help(AboutDialog::Facts facts) : m_facts(std::move(facts)) {
  qApp->installEventFilter(this);
}

Help::~Help() = default;

HelpWindow &Help::window() {
  if (!m_window) {
    m_window = std::make_unique<HelpWindow>();
    connect(m_window.get(), &HelpWindow::aboutWanted, this, [this] { AboutDialog(m_facts, m_window.get()).exec(); });
  }
  return *m_window;
}

void Help::open(const QString &screen) {
  window().showFor(screen);
}

// The control with the focus gets the key first; a window of ours on top of a screen, as a list of a combo, is no
// screen of its own.
bool Help::eventFilter(QObject *watched, QEvent *event) {
  const auto *control = qobject_cast<QWidget *>(watched);
  if (event->type() != QEvent::KeyPress || !control || static_cast<QKeyEvent *>(event)->key() != Qt::Key_F1)
    return QObject::eventFilter(watched, event);
  const QWidget *asking = control->window();
  while (asking->parentWidget())
    asking = asking->parentWidget()->window();
  open(asking->objectName());
  return true;
}
