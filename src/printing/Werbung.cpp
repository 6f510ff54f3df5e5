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
    const char *right, *down, *size;
  };
  constexpr Place places[] = {{"20", "235", "100"}, {"56", "235", "100"}, {"100", "235", "100"}, {"135", "250", "100"},
                              {"20", "258", "60"},  {"53", "260", "120"}, {"85", "255", "100"},  {"116", "267", "100"}};
  Werbung werbung;
  int i = 0;
  for (auto &banner : werbung) {
    const Place &place = places[i++];
    banner = {false, QStringLiteral("werbung%1.jpg").arg(i), QString::fromLatin1(place.right),
              QString::fromLatin1(place.down), QString::fromLatin1(place.size)};
  }
  return werbung;
}

void readBanner(TextReader &file, SponsorBanner &banner) {
  QString chosen = banner.chosen ? QStringLiteral("1") : QStringLiteral("0");
  file.lineInto(chosen);
  banner.chosen = wholeNumber(chosen) != 0;
  for (QString *text : {&banner.file, &banner.right, &banner.down, &banner.size})
    file.lineInto(*text);
  banner.right = BannerFields::right.held(banner.right);
  banner.down = BannerFields::down.held(banner.down);
  banner.size = BannerFields::size.held(banner.size);
}

} // namespace

QString BannerRange::held(const QString &text) const {
  const double number = leadingNumber(text);
  const bool isNumber = number != 0 || trimmedBlanks(text).startsWith(QLatin1Char('0'));
  if (!isNumber || number < lowest)
    return plainText(lowest);
  return number > highest ? plainText(highest) : text;
}

Werbung loadBanners(const Store &store) {
  Werbung werbung = builtIn();
  auto file = TextReader::ifThere(bannerFile(store));
  if (!file)
    return werbung;
  for (auto &banner : werbung)
    readBanner(*file, banner);
  return werbung;
}

QByteArray bannerBytes(const Werbung &werbung) {
  TextWriter file;
  for (const auto &banner : werbung) {
    file.number(banner.chosen ? 1 : 0);
    for (const QString &text : {banner.file, banner.right, banner.down, banner.size})
      file.text(text);
  }
  return file.bytes();
}

void saveBanners(const Store &store, const Werbung &werbung) {
  replaceFile(bannerFile(store), bannerBytes(werbung));
}
