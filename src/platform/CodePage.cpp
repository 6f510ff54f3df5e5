#include "platform/CodePage.h"

#include "platform/Faults.h"

#include <QList>
#include <QStringDecoder>
#include <QStringEncoder>

#include <algorithm>

namespace {

constexpr auto CodePageName = "windows-1252";

// Windows-1252 and Latin-1 differ only from 80 to 9F hex, so most texts take the fast way.
bool sameAsLatin1(QByteArrayView bytes) {
  return std::none_of(bytes.begin(), bytes.end(), [](char c) { return uchar(c) >= 0x80 && uchar(c) <= 0x9f; });
}

bool sameAsLatin1(const QString &text) {
  return std::all_of(text.begin(), text.end(),
                     [](QChar c) { return c.unicode() < 0x80 || (c.unicode() >= 0xa0 && c.unicode() <= 0xff); });
}

QStringEncoder makeEncoder() {
  QStringEncoder encoder(CodePageName);
  if (!encoder.isValid())
    throw Fault(QStringLiteral("Der Zeichensatz Windows-1252 fehlt auf diesem Rechner."));
  return encoder;
}

// An encoder keeps its error for good, so each character of a text with foreign ones gets a fresh one.
QByteArray encodeEach(const QString &text) {
  QByteArray bytes;
  for (const uint ucs4 : text.toUcs4()) {
    auto encoder = makeEncoder();
    const QByteArray one = encoder(QString::fromUcs4(reinterpret_cast<const char32_t *>(&ucs4), 1));
    bytes += encoder.hasError() || one.size() != 1 ? QByteArray("?") : one;
  }
  return bytes;
}

} // namespace

QString fromCodePage(QByteArrayView bytes) {
  if (sameAsLatin1(bytes))
    return QString::fromLatin1(bytes);
  QStringDecoder decoder(CodePageName);
  return decoder(bytes);
}

QByteArray toCodePage(const QString &text) {
  if (sameAsLatin1(text))
    return text.toLatin1();
  const QString composed = text.normalized(QString::NormalizationForm_C);
  auto encoder = makeEncoder();
  const QByteArray bytes = encoder(composed);
  return encoder.hasError() || bytes.size() != composed.size() ? encodeEach(composed) : bytes;
}

QByteArray toField(const QString &text, int width) {
  return toCodePage(text).left(width).leftJustified(width, ' ');
}
