#include "platform/Numbers.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

constexpr double WholeLimit = 1e15;
constexpr int ExactDigits = 15;

bool isDigit(QChar c) {
  return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

qsizetype skipDigits(QStringView text, qsizetype at) {
  while (at < text.size() && isDigit(text[at]))
    ++at;
  return at;
}

// A sign and digits, no more than a double holds exactly; quick, as every list line is read back by it. 0 for no digit.
double plainWhole(QStringView number) {
  double value = 0;
  for (const QChar c : number)
    if (isDigit(c))
      value = value * 10 + c.digitValue();
  return number.startsWith(QLatin1Char('-')) ? -value : value;
}

void roundUp(std::string &digits) {
  auto at = digits.size() - 1;
  for (; digits[at] == '9'; --at)
    digits[at] = '0';
  ++digits[at];
}

// Decimal digits of a value 0.ddd… × 10^exponent with a zero in front, in case a half carries.
struct Decimal {
  std::string digits;
  int exponent;
};

Decimal decimalOf(double value, int significant) {
  constexpr int Guard = 9;     // digits more than wanted, so that an exact half is seen as one and goes up
  std::array<char, 48> text{}; // "d.ddde±xx", so that digit n stands at n, but for the first
  std::to_chars(text.data(), text.data() + text.size(), std::fabs(value), std::chars_format::scientific,
                significant - 1 + Guard);
  std::string digits{'0', text[0]};
  digits.append(&text[2], std::size_t(significant) - 1);
  if (text[std::size_t(significant) + 1] >= '5')
    roundUp(digits);
  return {digits, std::atoi(&text[std::size_t(significant) + Guard + 2]) + 1};
}

// All digits before and `decimals` digits behind the point, with one zero or more in front, rounded half up.
std::string fixedDigits(Decimal number, std::size_t decimals) {
  const int keep = number.exponent + int(decimals);
  if (keep < 0)
    return std::string(decimals, '0');
  std::string &digits = number.digits;
  const auto length = std::size_t(keep) + 1;
  const bool up = length < digits.size() && digits[length] >= '5';
  digits.resize(length, '0');
  if (up)
    roundUp(digits);
  digits.insert(0, decimals - std::min(decimals, length), '0');
  return digits;
}

QString maskedDigits(double value, int significant, std::string_view mask) {
  const auto point = std::min(mask.find('.'), mask.size());
  const auto width = point - std::min(mask.find('0'), point);
  const auto decimals = mask.size() - std::min(point + 1, mask.size());
  std::string digits = fixedDigits(decimalOf(value, significant), decimals);
  const bool zero = digits.find_first_not_of('0') == std::string::npos;
  const auto whole = digits.size() - decimals;
  const auto leadingZeros = std::min(digits.find_first_not_of('0'), whole);
  const auto wanted = std::max(width, whole - leadingZeros);
  if (wanted > whole)
    digits.insert(0, wanted - whole, '0');
  else
    digits.erase(0, whole - wanted);
  if (decimals > 0)
    digits.insert(wanted, 1, ',');
  if (value < 0 && !zero)
    digits.insert(0, 1, '-');
  return QString::fromLatin1(digits.data(), qsizetype(digits.size()));
}

template <typename Number> std::optional<Number> ifDigits(Number value) {
  const QString text = plainText(value);
  const bool letters = std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
  return letters ? std::nullopt : std::optional(value);
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
  const auto number = text.sliced(start, end - start);
  const bool whole = number.size() <= ExactDigits && !number.contains(QLatin1Char('.'));
  return (whole ? plainWhole(number) : number.toDouble()) + 0.0; // no negative zero
}

qint64 wholeNumber(QStringView text) {
  return qint64(std::nearbyint(std::clamp(leadingNumber(text), -WholeLimit, WholeLimit)));
}

std::optional<qint16> shortNumber(QStringView text) {
  const qint64 number = wholeNumber(text);
  return number == qint16(number) ? std::optional(qint16(number)) : std::nullopt;
}

int numberAtEnd(QStringView line) {
  constexpr int mostDigits = 6;
  return int(wholeNumber(line.sliced(line.lastIndexOf(QLatin1Char(' ')) + 1).right(mostDigits)));
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

bool readsBack(double seconds) {
  return regionalNumber(plainText(seconds)).has_value();
}

std::optional<double> typedNumber(QStringView text) {
  return ifDigits(leadingNumber(text));
}

std::optional<float> typedSingle(QStringView text) {
  return ifDigits(float(leadingNumber(text)));
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

QString fileText(double value) {
  return plainText(readsBack(value) ? value : 0);
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
