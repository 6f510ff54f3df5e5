#include "platform/print/Printers.h"

#include <algorithm>

namespace {

constexpr qsizetype MostNames = 20; // that a report can show

QString printedBefore(const QStringList &printed, qsizetype count) {
  if (printed.isEmpty())
    return QStringLiteral("Von %1 Ausdrucken ist noch keiner gedruckt.").arg(count);
  const QString whose = printed.size() <= MostNames ? printed.join(QStringLiteral(", "))
                                                    : printed.first() + QStringLiteral(" bis ") + printed.last();
  return QStringLiteral("Gedruckt sind %1 von %2: %3.").arg(printed.size()).arg(count).arg(whose);
}

} // namespace

void printSeries(qsizetype count, const std::function<QString(qsizetype)> &print) {
  QStringList printed;
  try {
    while (printed.size() < count)
      printed.append(print(printed.size()));
  } catch (const PrintFault &fault) {
    if (count == 1)
      throw;
    throw PrintFault(fault.report() + QLatin1Char(' ') + printedBefore(printed, count));
  }
}

Printers::Printers(std::function<SystemPrinters()> system, QList<Printer> own, QList<Printer> exports)
    : m_system(std::move(system)), m_own(std::move(own)), m_exports(std::move(exports)) {}

const QList<Printer> &Printers::all() {
  const SystemPrinters found = m_system();
  m_all = found.printers + m_own;
  if (!m_current.print && !m_all.isEmpty()) {
    const auto standard = std::find_if(
        m_all.begin(), m_all.end(), [&found](const Printer &printer) { return printer.DeviceName == found.standard; });
    m_current = standard == m_all.end() ? m_all.last() : *standard;
  }
  m_all += m_exports;
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
  noteUnreadablePictures(recording);
  try {
    if (!printer.print)
      throw Fault(QStringLiteral("Es gibt keinen Drucker."));
    const QString file = printer.print(recording);
    if (!file.isEmpty())
      m_outcome.files.append(file);
  } catch (const Fault &fault) {
    throw PrintFault(QStringLiteral("„%1“ wurde nicht gedruckt. ").arg(recording.title) + fault.report());
  }
}

void Printers::noteUnreadablePictures(const Recording &recording) {
  for (const PrintPage &page : recording.pages)
    for (const PrintOperation &operation : page)
      if (const auto *picture = std::get_if<PictureOperation>(&operation);
          picture && picture->image.isNull() && !m_outcome.unreadablePictures.contains(picture->path))
        m_outcome.unreadablePictures.append(picture->path);
}
