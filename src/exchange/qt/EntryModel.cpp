#include "exchange/qt/EntryModel.h"

#include "platform/Dates.h"
#include "platform/Numbers.h"

#include <QColor>

namespace {

constexpr double UnknownBirthDate = 2;

namespace Head {
enum { Line, What, Name, Birth, Sex, Club, Club2, Club3, OesvNr, Points, Remarks, Count };
}

const QStringList Heads{QStringLiteral("Zeile"),    QStringLiteral("was geschieht"), QStringLiteral("Name"),
                        QStringLiteral("geboren"),  QStringLiteral("m/w"),           QStringLiteral("Verein"),
                        QStringLiteral("Verein 2"), QStringLiteral("Verein 3"),      QStringLiteral("ÖSV-Nummer"),
                        QStringLiteral("Punkte"),   QStringLiteral("Anmerkungen")};

struct Look {
  QChar sign;
  QRgb ground;
};

Look lookOf(const EntryPlan &plan, const PlannedEntry &line) {
  if (line.verdict == Verdict::Refused)
    return {QChar(u'✕'), 0xFFFFD6D6};
  if (line.choice == Choice::LeaveOut)
    return {QChar(u'–'), 0xFFECECEC};
  if (!plan.isTaken(line))
    return {QChar(u'?'), 0xFFFFF1C9};
  return line.choice == Choice::New ? Look{QChar(u'+'), 0xFFDDF3DD} : Look{QChar(u'='), 0xFFFFFFFF};
}

QString sexText(qint16 sex) {
  return QStringList{QStringLiteral("w"), QStringLiteral("m")}.value(sex);
}

QString birthText(const LaeuferSatz &athlete) {
  return athlete.Geburtsdatum == UnknownBirthDate ? QString() : shortDate(fromDays(athlete.Geburtsdatum));
}

} // namespace

void EntryModel::setPlan(EntryPlan plan) {
  beginResetModel();
  m_plan = std::move(plan);
  endResetModel();
}

void EntryModel::choose(int line, Choice choice) {
  m_plan.lines[line].choice = choice;
  linesChanged();
}

void EntryModel::answerClub(const QString &folded, int club) {
  m_plan.unknownClubs[folded].club = club;
  linesChanged();
}

void EntryModel::linesChanged() {
  Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, Head::Count - 1));
}

int EntryModel::rowCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : int(m_plan.lines.size());
}

int EntryModel::columnCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : int(Head::Count);
}

QVariant EntryModel::data(const QModelIndex &index, int role) const {
  const PlannedEntry &line = m_plan.lines.at(index.row());
  const Look look = lookOf(m_plan, line);
  if (role == Qt::DisplayRole)
    return index.column() == Head::What ? look.sign + QLatin1Char(' ') + text(line, Head::What)
                                        : text(line, index.column());
  if (role == Qt::ToolTipRole)
    return text(line, index.column());
  if (role == Qt::BackgroundRole)
    return QColor(look.ground);
  if (role == Qt::ForegroundRole)
    return QColor(Qt::black); // the grounds are pale in every theme
  return {};
}

QVariant EntryModel::headerData(int section, Qt::Orientation orientation, int role) const {
  return orientation == Qt::Horizontal && role == Qt::DisplayRole ? Heads.value(section) : QVariant();
}

QString EntryModel::text(const PlannedEntry &line, int column) const {
  const LaeuferSatz &athlete = line.entry.athlete;
  switch (column) {
  case Head::Line:
    return plainText(line.entry.line);
  case Head::What:
    return wordsFor(m_store, m_plan, line, m_race);
  case Head::Name:
    return athlete.Name;
  case Head::Birth:
    return birthText(athlete);
  case Head::Sex:
    return sexText(athlete.Geschlecht);
  case Head::Club:
    return line.entry.clubs[0];
  case Head::Club2:
    return line.entry.clubs[1];
  case Head::Club3:
    return line.entry.clubs[2];
  case Head::OesvNr:
    return athlete.OesvNr;
  case Head::Points:
    return athlete.LaeuferPunkte == 0 ? QString() : plainText(athlete.LaeuferPunkte);
  default:
    return line.entry.remarks.join(QStringLiteral("; "));
  }
}
