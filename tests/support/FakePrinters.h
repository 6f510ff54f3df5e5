#pragma once

#include "platform/print/Printers.h"

#include <memory>

/// Printers that keep what they are given; the system's default is the first.
class FakePrinters {
public:
  explicit FakePrinters(const QStringList &system = {"Laser", "Alt"}) {
    for (const QString &name : system)
      m_system.append(printer(name));
    printers = std::make_unique<Printers>(
        [this] {
          ++asked;
          return SystemPrinters{m_system, m_system.isEmpty() ? QString() : m_system.first().DeviceName};
        },
        QList<Printer>());
  }

  Printer printer(const QString &name) {
    return {name, [this, name](const Recording &recording) {
              if (refuse)
                throw Fault("Der Drucker ist nicht bereit.");
              documents.append(recording);
              usedPrinters.append(name);
              return QString("Ausdrucke/") + recording.name + QString(".pdf");
            }};
  }

  std::unique_ptr<Printers> printers;
  int asked = 0;
  bool refuse = false;
  QList<Recording> documents;
  QStringList usedPrinters;

private:
  QList<Printer> m_system;
};
