#include "platform/qt/FaultReport.h"

#include "platform/Faults.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <csignal>
#include <cstdio>

namespace {

std::function<QString()> rescueWork = [] { return QString(); };
bool reporting = false;

QString whatHappened() {
  try {
    throw;
  } catch (const Fault &fault) {
    return fault.report();
  } catch (const std::bad_alloc &) {
    return QStringLiteral("Der Arbeitsspeicher reicht nicht aus.");
  } catch (const std::exception &e) {
    return QStringLiteral("Es ist ein unerwarteter Fehler aufgetreten (%1).").arg(QString::fromLocal8Bit(e.what()));
  } catch (...) {
    return QStringLiteral("Es ist ein unerwarteter Fehler aufgetreten.");
  }
}

void tellConsole(const QString &text) {
  const QByteArray line = (QStringLiteral("VEXT: ") + text + QLatin1Char('\n')).toLocal8Bit();
  std::fwrite(line.constData(), 1, size_t(line.size()), stderr); // a text from a file may hold NULs
  std::fflush(stderr);
}

// While the report stands no timer, no leaving of a field and no click may touch the broken state.
void freezeScreens() {
  QObject::disconnect(qApp, &QApplication::focusChanged, nullptr, nullptr);
  for (auto *window : QApplication::topLevelWidgets()) {
    window->setEnabled(false);
    for (auto *timer : window->findChildren<QTimer *>())
      timer->stop();
  }
}

void showReport(const QString &what, const QString &saved) {
  QMessageBox box(QMessageBox::Critical, QStringLiteral("VEXT"),
                  QStringLiteral("VEXT muss wegen eines Fehlers beendet werden.\n\n") + what);
  box.setTextFormat(Qt::PlainText);
  box.setObjectName(QStringLiteral("Fehlerbericht"));
  box.setInformativeText(saved);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  box.addButton(QStringLiteral("Schließen"), QMessageBox::AcceptRole);
  box.exec();
}

[[noreturn]] void terminated() {
  if (!reporting) {
    reporting = true;
    tellConsole((std::current_exception() ? whatHappened() : QString()) + QLatin1Char('\n') + rescueWork());
  }
  std::_Exit(FaultReport::Terminated);
}

} // namespace

void FaultReport::install(std::function<QString()> rescue) {
  rescueWork = std::move(rescue);
  std::set_terminate(terminated);
#ifdef SIGXFSZ
  std::signal(SIGXFSZ, SIG_IGN);
#endif
}

void FaultReport::reportCurrent() {
  if (reporting)
    std::_Exit(WhileReporting);
  reporting = true;
  const QString what = whatHappened();
  const QString saved = rescueWork();
  tellConsole(what + QLatin1Char('\n') + saved);
  freezeScreens();
  showReport(what, saved);
  std::_Exit(Reported);
}
