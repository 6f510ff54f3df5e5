#pragma once

#include "core/Store.h"
#include "platform/qt/Screen.h"

#include <QList>

#include <memory>

class QLineEdit;

namespace Ui {
class Form16;
}

/// "Daten für Titelblatt": the facts and officials of the race, printed on the official cover. Label1 shows the race;
/// each text box is one field of the race record, stored trimmed when it is left: Text1 Ort, Text2 short name, Text3
/// date (a beep and the old value if it is none), Text4 Veranstalter, Text5 durchführender Verein, Text6 Startzeit,
/// Text7 Kurssetzung, Text8 Rennleiter, Text9 Tore, Text10 Zeitnehmung, Text11 Chefkampfrichter, Text12 Zielrichter,
/// Text13 Startrichter, Text14 to Text19 sponsors, which no document prints. Command10 opens the banners, Command1
/// closes. Closing writes the race record, but for race 0.
class Form16 : public Screen {
  Q_OBJECT

public:
  Form16(Desk &desk, Store &store);
  ~Form16() override;
  void becomeActive() override;

Q_SIGNALS:
  /// The banners are wanted.
  void bannersRequested();

protected:
  void closing() override;

private:
  struct Binding {
    QLineEdit *box;
    QString RennenSatz::*field;
  };
  void bind(QLineEdit *box, QString RennenSatz::*field);
  void storeDate();

  std::unique_ptr<Ui::Form16> ui;
  Store &m_store;
  QList<Binding> m_bindings;
};
