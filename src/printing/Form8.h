#pragma once

#include "platform/print/Printers.h"
#include "platform/qt/Screen.h"
#include "printing/Werbung.h"

#include <memory>
#include <optional>

class Druckschicht;
class QPushButton;
namespace Ui {
class Form8;
}

/// The printouts of the open race.
///
/// `Label1` is the race, `Label3` the current printer. Lists: `Command3` results, `Command4` by class, `Command9` by
/// name, `Command2` second run, `Command7` the unranked; `Command5` the certificates of the lines marked in `List2`,
/// `Command8` the title page. `Check1` with `Combo3` restricts the results to a club, `Check2` with `Text1` to `Text3`
/// replaces place and time on certificates, `Combo1` chooses their picture; `Combo2` the best-time remark and `Combo4`
/// the class from which it counts. `Command10` opens the banners, `Command6` the choice of the printer.
class Form8 : public Screen {
  Q_OBJECT

public:
  Form8(Desk &desk, Store &store, Printers &printers);
  ~Form8() override;

  void becomeActive() override;

Q_SIGNALS:
  /// The banners are wanted.
  void bannersRequested();
  /// The choice of the printer is wanted.
  void printerRequested();

protected:
  void closing() override;

private:
  void fill();
  void connectDocuments();
  void connectChoices();
  void print(const std::function<void(Druckschicht &)> &document);
  /// Prints with the button disabled meanwhile.
  void printOnce(QPushButton *button, const std::function<void(Store &, Druckschicht &)> &document);
  void printCertificates(Druckschicht &druck);
  void printTitlePage(Druckschicht &druck);
  void keepBanners();
  void showPrinter();
  std::optional<int> clubFilter() const;

  Store &m_store;
  Printers &m_printers;
  std::unique_ptr<Ui::Form8> ui;
  /// The banners from a title page on until they are written back.
  std::optional<Werbung> m_werbung;
};
