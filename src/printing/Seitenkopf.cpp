#include "printing/Seitenkopf.h"

#include "platform/Dates.h"
#include "platform/Numbers.h"
#include "printing/PrintHelpers.h"

namespace {

ListHead classList(const QString &name, bool logo, double pageSize = 8) {
  return {name, true, 98, true, logo, 10, 38, pageSize};
}

void printTitle(const Store &store, Druckschicht &druck, const ListHead &head) {
  const bool isShort = head.shortTitle && !store.Rennen.RennenKurz.isEmpty();
  const QString &title = isShort ? store.Rennen.RennenKurz : store.Rennen.RennenName;
  druck.FontName = QStringLiteral("Arial");
  druck.CurrentX = 22;
  druck.CurrentY = 12;
  druck.FontBold = druck.FontItalic = true;
  fitTitle(druck, title, head.titleLimit);
  druck.Print(title);
}

void printAt(Druckschicht &druck, float x, float y, double size, const QString &text) {
  druck.CurrentX = x;
  druck.CurrentY = y;
  druck.FontSize = size;
  druck.FontBold = false;
  druck.Print(text);
}

void paintPictures(Druckschicht &druck) {
  druck.PaintPicture(druck.LoadPicture(QStringLiteral(":/kopf1.jpg")), 191, 11, 5.5, 18);
  Rahmen(druck, 190.5, 10, 197, 30);
  druck.PaintPicture(druck.LoadPicture(QStringLiteral(":/kopf2.jpg")), 4, 10, 15.5, 20);
}

} // namespace

const ListHead &ListHeads::results() {
  static const ListHead head = classList(QStringLiteral("Ergebnisliste"), true);
  return head;
}

const ListHead &ListHeads::combinedResults() {
  static const ListHead head = classList(QStringLiteral("Ergebnisliste Kombination"), true, 9);
  return head;
}

const ListHead &ListHeads::participants() {
  static const ListHead head = classList(QStringLiteral("Teilnehmerliste"), false);
  return head;
}

const ListHead &ListHeads::alphabetic() {
  static const ListHead head = classList(QStringLiteral("Alphabetische Teilnehmerliste"), false);
  return head;
}

const ListHead &ListHeads::secondRun() {
  static const ListHead head{QStringLiteral("Startliste 2.Durchgang")};
  return head;
}

const ListHead &ListHeads::unranked() {
  static const ListHead head{QStringLiteral("Nicht in der Wertung")};
  return head;
}

// Quirk: italic head of a list. It stays on down to the date.
void beginHead(const Store &store, Druckschicht &druck, const ListHead &head, int page, const QString &suffix) {
  printTitle(store, druck, head);
  printAt(druck, 22, 22, 18, head.name + suffix);
  printAt(druck, 175, 12, head.pageSize, QStringLiteral("Seite -") + plainText(page));
  printAt(druck, 175, 25, 7, shortDate(store.umgebung.today()));
  druck.DrawWidth = 5;
  Rahmen(druck, 20, 10, 190, 30);
  if (head.pictures)
    paintPictures(druck);
  druck.DrawWidth = 1;
  druck.FontItalic = false;
  druck.FontSize = head.columnSize;
  druck.FontBold = true;
}

void endHead(Druckschicht &druck, const ListHead &head) {
  druck.FontBold = false;
  if (head.logo)
    printLogo(druck, 120, 11);
}
