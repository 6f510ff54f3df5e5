#include "core/Records.h"

#include "platform/CodePage.h"

#include <QtEndian>

#include <type_traits>

namespace {

/// Takes the fields of a record one after the other.
class Unpacker {
public:
  explicit Unpacker(const QByteArray &record) : m_rest(record) {}

  void operator()(QString &field, int width) { field = fromCodePage(take(width)); }
  void operator()(QByteArray &field, int width) { field = take(width).toByteArray(); }
  template <typename Number>
  requires std::is_arithmetic_v<Number>
  void operator()(Number &field) { field = qFromLittleEndian<Number>(take(sizeof(Number)).data()); }

private:
  QByteArrayView take(qsizetype width) {
    const QByteArrayView field = m_rest.first(width);
    m_rest = m_rest.sliced(width);
    return field;
  }

  QByteArrayView m_rest;
};

/// Appends the fields of a record one after the other.
class Packer {
public:
  void operator()(const QString &field, int width) { m_record += toField(field, width); }
  void operator()(const QByteArray &field, int width) { m_record += field.left(width).leftJustified(width, ' '); }
  template <typename Number>
  requires std::is_arithmetic_v<Number>
  void operator()(Number field) {
    char bytes[sizeof(Number)];
    qToLittleEndian(field, bytes);
    m_record.append(bytes, sizeof(Number));
  }

  const QByteArray &record() const { return m_record; }

private:
  QByteArray m_record;
};

// One list of fields for both directions: the layout of the record.

template <typename Satz, typename Visitor> void layoutOfVerein(Satz &v, Visitor &field) {
  field(v.VereinName, 80);
  field(v.VereinKurz, 40);
  field(v.VereinOesvNr, 4);
  field(v.VereinOrt, 80);
  field(v.Ansprechpartner, 80);
  field(v.Adresse, 100);
  field(v.Telefon, 30);
  field(v.EMail, 60);
  field(v.Handy, 20);
  field(v.Homepage, 60);
  field(v.Unbenannt, 4);
  field(v.VereinReserve, 240);
}

template <typename Satz, typename Visitor> void layoutOfLaeufer(Satz &l, Visitor &field) {
  field(l.Name, 80);
  field(l.Verein1);
  field(l.Verein2);
  field(l.Verein3);
  field(l.Geburtsdatum);
  field(l.Geschlecht);
  field(l.OesvNr, 9);
  field(l.LaeuferPunkte);
  field(l.LaeuferReserve, 240);
}

template <typename Satz, typename Visitor> void layoutOfRennen(Satz &r, Visitor &field) {
  field(r.RennenName, 80);
  field(r.RennenKurz, 50);
  field(r.RennenNrText, 14);
  field(r.RennenOrt, 80);
  field(r.RennenDatum);
  field(r.Veranstalter, 80);
  field(r.ZuschlagGast);
  field(r.ZuschlagMann);
  field(r.WertKlassen);
  field(r.WertGeschlecht);
  field(r.WertGaeste);
  field(r.WertZeit);
  field(r.ZweiDurchgaenge);
  field(r.UrkundeBild);
  field(r.BestzeitText);
  field(r.DurchfVerein, 25);
  field(r.WertBoarder);
  field(r.BestzeitAbKlasse);
  field(r.Startzeit, 5);
  field(r.Rennleiter, 25);
  field(r.Kurssetzung, 25);
  field(r.Tore, 4);
  for (auto *official : {&r.Startrichter, &r.Zielrichter, &r.Zeitnehmung, &r.Chefkampfrichter})
    field(*official, 25);
  for (auto *sponsor : {&r.Sponsor1, &r.Sponsor2, &r.Sponsor3, &r.Sponsor4, &r.Sponsor5, &r.Sponsor6})
    field(*sponsor, 40);
  field(r.RennenReserve, 374);
}

} // namespace

VereinSatz vereinFromBytes(const QByteArray &record) {
  VereinSatz verein;
  Unpacker unpack(record);
  layoutOfVerein(verein, unpack);
  return verein;
}

QByteArray toBytes(const VereinSatz &verein) {
  Packer pack;
  layoutOfVerein(verein, pack);
  return pack.record();
}

LaeuferSatz laeuferFromBytes(const QByteArray &record) {
  LaeuferSatz laeufer;
  Unpacker unpack(record);
  layoutOfLaeufer(laeufer, unpack);
  return laeufer;
}

QByteArray toBytes(const LaeuferSatz &laeufer) {
  Packer pack;
  layoutOfLaeufer(laeufer, pack);
  return pack.record();
}

RennenSatz rennenFromBytes(const QByteArray &record) {
  RennenSatz rennen;
  Unpacker unpack(record);
  layoutOfRennen(rennen, unpack);
  return rennen;
}

QByteArray toBytes(const RennenSatz &rennen) {
  Packer pack;
  layoutOfRennen(rennen, pack);
  return pack.record();
}
