#pragma once

#include <QString>

#include <optional>

// Two conversions of text to numbers exist and are not the same: the leading number knows only the point and stops at a
// comma; the regional one knows only the comma and takes the whole text or nothing.

/// Leading blanks are skipped, then sign, digits, at most one point with digits behind; stops at what does not fit.
/// No digit gives 0. "12,5" is 12, "12.5" is 12.5, "7abc" is 7.
double leadingNumber(QStringView text);
/// The leading number as a whole one, halves to even ("12.5" is 12, "13.5" is 14). Any size; held to ±10^15.
qint64 wholeNumber(QStringView text);
/// The same where a field is 16-bit; nothing if the number is outside −32768 to 32767.
std::optional<qint16> shortNumber(QStringView text);
/// The number that a list line ends with, a row or a record: the leading number of what stands behind its last blank,
/// six characters at most.
int numberAtEnd(QStringView line);
/// Decimal comma, optional exponent ("1E+15"), blanks around; nothing if the text is anything else, or empty.
std::optional<double> regionalNumber(QStringView text);

/// Whether a file of lines gives a time back: regionalNumber reads its plain text. Not so for what is endless or no
/// number, nor where the text is rounded up beyond all numbers.
bool readsBack(double seconds);
/// The leading number that an operator has typed; nothing if its plain text needs an exponent (from 1E+15 up and below
/// 0,0001) or is none at all: read again, it would be another number.
std::optional<double> typedNumber(QStringView text);
/// The same in single precision.
std::optional<float> typedSingle(QStringView text);

/// Plain decimal text with a comma and no blank: up to 15 significant digits, exponents from 1E+15 up and below 0,0001.
QString plainText(double value);
/// The same with up to 7 significant digits.
QString plainText(float value);
QString plainText(int value);
/// plainText as a file keeps it: 0 in place of what does not read back, or the file would never be read again.
QString fileText(double value);
/// plainText with a leading blank for values from 0 on.
template <typename Number> QString spacedText(Number value) {
  return value < 0 ? plainText(value) : QLatin1Char(' ') + plainText(value);
}

/// A number in a mask: "0##" three digits at least, "0####.#0" five and two decimals, "#.#0" none before the comma
/// needed. Halves of the decimal text (15 significant digits) are rounded away from zero; a value that rounds to 0 has
/// no sign.
QString masked(double value, const char *mask);
/// The same for single precision: halves are those of 7 significant digits.
QString masked(float value, const char *mask);
inline QString masked(int value, const char *mask) {
  return masked(double(value), mask);
}

/// Without the blanks (20 hex, and nothing else) on both sides.
QString trimmedBlanks(QStringView text);
/// The text as screens show it: without the NULs that fill the name of a record in a gap of its file.
QString shownText(QString text);
/// Upper case character by character, so that the length stays ("ß" stays "ß").
QString upperCase(QString text);
/// The text cut or filled with blanks on the right to `width` characters.
QString padded(const QString &text, int width);
/// The last `width` characters of `width` blanks and the text: right-aligned, a longer text loses its front.
QString rightAligned(const QString &text, int width);
