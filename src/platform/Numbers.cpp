#include "platform/Numbers.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <string_view>

namespace {

constexpr double WholeLimit = 1e15;

bool isDigit(QChar c) {
  return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

qsizetype skipDigits(QStringView text, qsizetype at) {
  while (at < text.size() && isDigit(text[at]))
    ++at;
  return at;
}

// Decimal digits d1 d2 d3 … of a value 0.d1d2d3… × 10^exponent.
struct Decimal {
  QByteArray digits;
  int exponent;
};

Decimal decimalOf(double value, int significant) {
  const QByteArray text = QByteArray::number(std::fabs(value), 'e', significant - 1); // "d.ddde±xx"
  const auto e = text.indexOf('e');
  return {text.left(1) + text.mid(2, std::max<qsizetype>(0, e - 2)), text.mid(e + 1).toInt() + 1};
}

// All digits before and `decimals` digits behind the point, rounded half up.
QByteArray fixedDigits(Decimal number, int decimals) {
  const auto keep = number.exponent + decimals;
  if (keep < 0)
    return QByteArray(decimals, '0');
  QByteArray digits = '0' + number.digits.leftJustified(keep, '0').left(keep);
  if (keep < number.digits.size() && number.digits[keep] >= '5') {
    auto at = digits.size() - 1;
    for (; digits[at] == '9'; --at)
      digits[at] = '0';
    ++digits[at];
  }
  return digits.rightJustified(decimals, '0');
}

QString maskedDigits(double value, int significant, std::string_view mask) {
  const auto point = std::min(mask.find('.'), mask.size());
  const auto firstZero = std::min(mask.find('0'), point);
  const int decimals = int(mask.size() - std::min(point + 1, mask.size()));
  const QByteArray digits = fixedDigits(decimalOf(value, significant), decimals);
  QByteArray whole = digits.left(digits.size() - decimals);
  whole.remove(0, std::find_if(whole.begin(), whole.end(), [](char c) { return c != '0'; }) - whole.begin());
  QByteArray text = whole.rightJustified(qsizetype(point - firstZero), '0');
  if (decimals > 0)
    text += ',' + digits.right(decimals);
  const bool zero = std::all_of(digits.begin(), digits.end(), [](char c) { return c == '0'; });
  return QString::fromLatin1(value < 0 && !zero ? '-' + text : text);
}

} // namespace

double leadingNumber(QStringView text) {
  qsizetype start = 0;
  while (start < text.size() && text[start] == QLatin1Char(' '))
    ++start;
  qsizetype at = start;
  if (at < text.size() && (text[at] == QLatin1Char('+') || text[at] == QLatin1Char('-')))
    ++at;
  qsizetype end = skipDigits(text, at);
  if (end < text.size() && text[end] == QLatin1Char('.')) {
    const qsizetype behind = skipDigits(text, end + 1);
    if (behind > end + 1)
      end = behind;
  }
  if (end == at)
    return 0;
  return text.sliced(start, end - start).toDouble();
}

qint64 wholeNumber(QStringView text) {
  return qint64(std::nearbyint(std::clamp(leadingNumber(text), -WholeLimit, WholeLimit)));
}

std::optional<qint16> shortNumber(QStringView text) {
  const qint64 number = wholeNumber(text);
  return number == qint16(number) ? std::optional(qint16(number)) : std::nullopt;
}

int rowAtEnd(QStringView line, int length) {
  return int(wholeNumber(line.right(length)));
}

std::optional<double> regionalNumber(QStringView text) {
  static const QRegularExpression form(
      QStringLiteral("\\A *([+-]?(?:[0-9]+(?:,[0-9]*)?|,[0-9]+)(?:E[+-][0-9]+)?) *\\z"));
  const auto match = form.match(text.toString());
  if (!match.hasMatch())
    return {};
  bool fits = false;
  const double value = match.captured(1).replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&fits);
  return fits ? std::optional(value) : std::nullopt;
}

QString plainText(double value) {
  if (value == 0)
    return QStringLiteral("0");
  return QString::number(value, 'G', 15).replace(QLatin1Char('.'), QLatin1Char(','));
}

QString plainText(float value) {
  return plainText(QString::number(double(value), 'g', 7).toDouble());
}

QString plainText(int value) {
  return QString::number(value);
}

QString masked(double value, const char *mask) {
  return maskedDigits(value, 15, mask);
}

QString masked(float value, const char *mask) {
  return maskedDigits(double(value), 7, mask);
}

QString trimmedBlanks(QStringView text) {
  while (text.startsWith(QLatin1Char(' ')))
    text = text.sliced(1);
  while (text.endsWith(QLatin1Char(' ')))
    text.chop(1);
  return text.toString();
}

QString shownText(QString text) {
  return text.remove(QChar(u'\0'));
}

QString upperCase(QString text) {
  for (QChar &c : text)
    c = c.toUpper();
  return text;
}

QString padded(const QString &text, int width) {
  return text.left(width).leftJustified(width);
}

QString rightAligned(const QString &text, int width) {
  return text.rightJustified(width).right(width);
}
