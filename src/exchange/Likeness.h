#pragma once

#include <QHash>
#include <QString>

#include <bit>
#include <vector>

/// A name with all that people spell in different ways taken out: capitals, accents, "ae" for "ä", hyphens.
QString foldedName(const QString &name);
/// The same without blanks and dots, for clubs.
QString foldedClub(const QString &name);

/// Finds whom a name may mean.
class NameIndex {
public:
  /// `year` 0 = not known.
  void add(const QString &folded, int year, int record);

  /// All of exactly this name.
  QList<int> same(const QString &folded) const { return m_byName.values(folded); }
  /// One whose name has the same words in another order; or one of the same year, of any if either is not known, whose
  /// name differs by two letters, in a short name by one. 0 if there is none.
  int similar(const QString &folded, int year) const;

private:
  struct Person {
    QString name;
    quint32 letters;
    int record;
  };
  int similarAmong(const std::vector<Person> &persons, const QString &folded) const;

  QMultiHash<QString, int> m_byName, m_byWords;
  QHash<int, std::vector<Person>> m_byYear;
};
