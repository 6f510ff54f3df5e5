#include "exchange/Entries.h"

#include "platform/CodePage.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"

#include <QRegularExpression>

#include <algorithm>
#include <optional>

namespace {

constexpr int NameWidth = 80, OesvNrWidth = 9, ClubWidth = 80;
constexpr int FirstYear = 1900;

bool isInCapitals(const QString &word) {
  return word.size() > 1 && word == upperCase(word) && word != word.toLower();
}

// "ANNA-LENA" becomes "Anna-Lena"; what has small letters stays as it is.
QString firstName(QString name) {
  if (!isInCapitals(name))
    return name;
  for (qsizetype i = 1; i < name.size(); ++i)
    if (name[i - 1].isLetter())
      name[i] = name[i].toLower();
  return name;
}

/// A text as its field of the record gives it back; a remark tells if that is another one.
QString inField(const QString &text, int width, const QString &what, QStringList &remarks) {
  const QString kept = trimmedBlanks(fromCodePage(toField(text, width)));
  if (kept != text)
    remarks << QStringLiteral("%1 wird „%2“").arg(what, kept);
  return kept;
}

/// One line, asked by the kinds of its columns.
class Fields {
public:
  Fields(const QStringList &line, const Columns &columns) : m_line(line), m_columns(columns) {}
  QString operator()(ColumnKind kind) const { return m_line.value(m_columns.kinds.indexOf(kind)); }

private:
  const QStringList &m_line;
  const Columns &m_columns;
};

QString nameOfLine(const Fields &field) {
  if (const QString whole = field(ColumnKind::Name); !whole.isEmpty())
    return nameFromWhole(whole);
  if (const QString whole = field(ColumnKind::FirstFamily); !whole.isEmpty())
    return nameFromWhole(whole, true);
  return nameFromParts(field(ColumnKind::Family), field(ColumnKind::First));
}

void takeBirth(Entry &entry, const QString &text, QDate today) {
  if (text.isEmpty())
    return void(entry.remarks << QStringLiteral("ohne Geburtsdatum"));
  const auto birth = birthFrom(text, today);
  if (!birth)
    return void(entry.trouble = QStringLiteral("kein mögliches Geburtsdatum: „%1“").arg(text));
  entry.athlete.Geburtsdatum = birth->days;
  entry.yearOnly = birth->yearOnly;
}

void takeSex(Entry &entry, const QString &text) {
  entry.athlete.Geschlecht = sexFrom(text);
  if (entry.athlete.Geschlecht == 2)
    entry.remarks << (text.isEmpty() ? QStringLiteral("ohne Geschlecht")
                                     : QStringLiteral("kein Geschlecht: „%1“").arg(text));
}

void takePoints(Entry &entry, QString text) {
  if (text.isEmpty())
    return;
  const auto points = regionalNumber(text.replace(QLatin1Char('.'), QLatin1Char(',')));
  const auto kept = points ? typedSingle(QString::number(*points, 'f')) : std::nullopt;
  if (kept)
    entry.athlete.LaeuferPunkte = *kept;
  else
    entry.remarks << QStringLiteral("keine Punkte: „%1“").arg(text);
}

Entry entryOf(int line, const Fields &field, QDate today) {
  Entry entry;
  entry.line = line;
  const QString name = nameOfLine(field);
  entry.athlete.Name = inField(name, NameWidth, QStringLiteral("Name"), entry.remarks);
  entry.athlete.OesvNr = inField(field(ColumnKind::OesvNr), OesvNrWidth, QStringLiteral("ÖSV-Nummer"), entry.remarks);
  constexpr std::array kinds{ColumnKind::Club, ColumnKind::Club2, ColumnKind::Club3};
  for (size_t slot = 0; slot < kinds.size(); ++slot)
    entry.clubs[slot] = inField(field(kinds[slot]), ClubWidth, nameOf(kinds[slot]), entry.remarks);
  takeSex(entry, field(ColumnKind::Sex));
  takePoints(entry, field(ColumnKind::Points));
  takeBirth(entry, field(ColumnKind::Birth), today);
  if (entry.athlete.Name.isEmpty())
    entry.trouble = QStringLiteral("kein Name");
  return entry;
}

int century(int twoDigits, QDate today) {
  return twoDigits + (2000 + twoDigits <= today.year() ? 2000 : 1900);
}

std::optional<QDate> dateFrom(const QString &text, QDate today) {
  static const QRegularExpression iso(QStringLiteral("\\A(\\d{4})[-/.](\\d\\d?)[-/.](\\d\\d?)\\b"));
  static const QRegularExpression german(QStringLiteral("\\A(\\d\\d?)[.,/-] ?(\\d\\d?)[.,/-] ?(\\d{4}|\\d\\d)"
                                                        "( \\d\\d?:[\\d:]+)?\\z"));
  QDate date;
  if (const auto found = iso.match(text); found.hasMatch())
    date = QDate(found.captured(1).toInt(), found.captured(2).toInt(), found.captured(3).toInt());
  else if (const auto typed = german.match(text); typed.hasMatch()) {
    const int year = typed.captured(3).toInt();
    date = QDate(year < 100 ? century(year, today) : year, typed.captured(2).toInt(), typed.captured(1).toInt());
  }
  return date.isValid() ? std::optional(date) : std::nullopt;
}

std::optional<int> yearFrom(const QString &text, QDate today) {
  static const QRegularExpression year(QStringLiteral("\\A(\\d\\d|\\d{4})\\z"));
  if (!year.match(text).hasMatch())
    return {};
  return text.size() == 2 ? century(text.toInt(), today) : text.toInt();
}

} // namespace

QList<Entry> entriesOf(const Table &table, const Columns &columns, QDate today) {
  QList<Entry> entries;
  for (qsizetype i = columns.heading ? 1 : 0; i < table.lines.size(); ++i)
    entries << entryOf(table.numbers[i], Fields(table.lines[i], columns), today);
  return entries;
}

QString nameFromWhole(const QString &whole, bool familyLast) {
  if (const auto comma = whole.indexOf(QLatin1Char(',')); comma >= 0)
    return nameFromParts(whole.left(comma).trimmed(), whole.mid(comma + 1).trimmed());
  QStringList words = whole.split(QLatin1Char(' '), Qt::SkipEmptyParts), family;
  const bool capitalsTell =
      std::any_of(words.begin(), words.end(), isInCapitals) && !std::all_of(words.begin(), words.end(), isInCapitals);
  const auto isFamily = [capitalsTell](const QString &word) {
    return word.front().isLower() || (capitalsTell && isInCapitals(word));
  };
  std::copy_if(words.begin(), words.end(), std::back_inserter(family), isFamily);
  words.erase(std::remove_if(words.begin(), words.end(), isFamily), words.end());
  if (!capitalsTell && !words.isEmpty())
    family << (familyLast ? words.takeLast() : words.takeFirst());
  return nameFromParts(family.join(QLatin1Char(' ')), words.join(QLatin1Char(' ')));
}

QString nameFromParts(const QString &family, const QString &first) {
  QStringList firsts = first.split(QLatin1Char(' '), Qt::SkipEmptyParts);
  std::transform(firsts.begin(), firsts.end(), firsts.begin(), firstName);
  return (QStringList(upperCase(family)) + firsts).join(QLatin1Char(' ')).trimmed();
}

std::optional<Birth> birthFrom(const QString &text, QDate today) {
  const auto year = yearFrom(text, today);
  const auto date = year ? QDate(*year, 1, 1) : dateFrom(text, today);
  if (!date || date->year() < FirstYear || *date > today)
    return {};
  return Birth{toDays(*date), year.has_value()};
}

qint16 sexFrom(const QString &text) {
  static const QRegularExpression male(QStringLiteral("\\A(m|männl.*|male|h|herr.*|b|bub.*|bursch.*|mann)\\z")),
      female(QStringLiteral("\\A(w|weibl.*|f|female|d|dame.*|mäd.*|frau)\\z"));
  const QString word = text.toLower();
  return male.match(word).hasMatch() ? qint16(1) : female.match(word).hasMatch() ? qint16(0) : qint16(2);
}
