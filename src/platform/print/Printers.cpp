#include "platform/print/Printers.h"

#include <algorithm>

Printers::Printers(std::function<SystemPrinters()> system, QList<Printer> own)
    : m_system(std::move(system)), m_own(std::move(own)) {}

const QList<Printer> &Printers::all() {
  const SystemPrinters found = m_system();
  m_all = found.printers + m_own;
  if (!m_current.print && !m_all.isEmpty()) {
    const auto standard = std::find_if(
        m_all.begin(), m_all.end(), [&found](const Printer &printer) { return printer.DeviceName == found.standard; });
    m_current = standard == m_all.end() ? m_all.last() : *standard;
  }
  return m_all;
}

bool Printers::isEmpty() {
  return m_own.isEmpty() && all().isEmpty();
}

const Printer &Printers::current() {
  if (!m_current.print)
    all();
  return m_current;
}

QString Printers::DeviceName() {
  return current().DeviceName;
}

void Printers::print(const Recording &recording) {
  print(recording, current());
}

void Printers::print(const Recording &recording, const Printer &printer) {
  try {
    if (!printer.print)
      throw Fault(QStringLiteral("Es gibt keinen Drucker."));
    const QString file = printer.print(recording);
    if (!file.isEmpty())
      m_lastFile = file;
  } catch (const Fault &fault) {
    throw PrintFault(QStringLiteral("\"%1\" wurde nicht gedruckt. ").arg(recording.name) + fault.report());
  }
}
