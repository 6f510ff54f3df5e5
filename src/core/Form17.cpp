#include "core/Form17.h"

#include "platform/qt/Desk.h"
#include "ui_Form17.h"

#include <chrono>

using namespace std::chrono_literals;

Form17::Form17(Desk &desk)
    : Screen(desk, QStringLiteral("Form17"), 17), ui(std::make_unique<Ui::Form17>()), m_timer(this) {
  ui->setupUi(this);
  setAttribute(Qt::WA_ShowWithoutActivating);
  setUp();
  ui->List1->viewport()->installEventFilter(this);
  onKey(Qt::Key_Escape, [this] { close(); });
  m_timer.setObjectName(QStringLiteral("Timer1"));
  connect(&m_timer, &QTimer::timeout, this, &Form17::comeForward);
  m_timer.start(15000ms);
}

Form17::~Form17() = default;

void Form17::remind(const QStringList &lines) {
  ui->List1->fill(lines);
  if (!isVisible())
    comeForward();
}

void Form17::comeForward() {
  comeBack();
  raise();
}

// Coming up by itself it leaves the field of another screen alone; the operator's own press leaves it.
void Form17::mousePressEvent(QMouseEvent *event) {
  desk().guard().flushOthers(this);
  Screen::mousePressEvent(event);
}

bool Form17::eventFilter(QObject *watched, QEvent *event) {
  if (watched == ui->List1->viewport() && event->type() == QEvent::MouseButtonPress)
    desk().guard().flushOthers(this);
  return Screen::eventFilter(watched, event);
}
