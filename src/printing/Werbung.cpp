#include "printing/Werbung.h"

#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/TextFile.h"

namespace {

QString bannerFile(const Store &store) {
  return store.DatenOrdner + QStringLiteral("werbung.dat");
}

Werbung builtIn() {
  struct Place {
    const char *rechts, *runter, *groesse;
  };
  constexpr Place places[] = {{"20", "235", "100"}, {"56", "235", "100"}, {"100", "235", "100"}, {"135", "250", "100"},
                              {"20", "258", "60"},  {"53", "260", "120"}, {"85", "255", "100"},  {"116", "267", "100"}};
  Werbung werbung;
  int i = 0;
  for (auto &banner : werbung) {
    const Place &place = places[i++];
    banner = {false, QStringLiteral("werbung%1.jpg").arg(i), QString::fromLatin1(place.rechts),
              QString::fromLatin1(place.runter), QString::fromLatin1(place.groesse)};
  }
  return werbung;
}

void readBanner(TextReader &file, Werbebanner &banner) {
  QString gewaehlt = banner.gewaehlt ? QStringLiteral("1") : QStringLiteral("0");
  file.lineInto(gewaehlt);
  banner.gewaehlt = wholeNumber(gewaehlt) != 0;
  for (QString *text : {&banner.datei, &banner.rechts, &banner.runter, &banner.groesse})
    file.lineInto(*text);
  banner.rechts = WerbeGrenzen::rechts.held(banner.rechts);
  banner.runter = WerbeGrenzen::runter.held(banner.runter);
  banner.groesse = WerbeGrenzen::groesse.held(banner.groesse);
}

} // namespace

QString WerbeGrenze::held(const QString &text) const {
  const double number = leadingNumber(text);
  const bool isNumber = number != 0 || trimmedBlanks(text).startsWith(QLatin1Char('0'));
  if (!isNumber || number < lowest)
    return plainText(lowest);
  return number > highest ? plainText(highest) : text;
}

Werbung WerbungLesen(const Store &store) {
  Werbung werbung = builtIn();
  auto file = TextReader::ifThere(bannerFile(store));
  if (!file)
    return werbung;
  for (auto &banner : werbung)
    readBanner(*file, banner);
  return werbung;
}

QByteArray werbungBytes(const Werbung &werbung) {
  TextWriter file;
  for (const auto &banner : werbung) {
    file.number(banner.gewaehlt ? 1 : 0);
    for (const QString &text : {banner.datei, banner.rechts, banner.runter, banner.groesse})
      file.text(text);
  }
  return file.bytes();
}

void WerbungSchreiben(const Store &store, const Werbung &werbung) {
  replaceFile(bannerFile(store), werbungBytes(werbung));
}
