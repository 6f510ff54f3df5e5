#pragma once

#include "core/Records.h"

#include <array>

// Clubs, people and races of the example event; all of them are invented.

struct Club {
  const char *lang, *kurz, *number, *ort, *ansprechpartner, *adresse, *telefon, *mail;
};

constexpr int Tannberg = 1;

constexpr Club Clubs[] = {
    {"Schiclub Tannberg", "SC Tannberg", "8101", "Tannberg", "Hannelore Gschößl", "Kirchplatz 3, 9988 Tannberg",
     "0999 / 4711", "office@sctannberg.example"},
    {"Turnverein Tannberg 1897", "TV Tannberg", "8102", "Tannberg", "Ägidius Brünner", "Turnhallenweg 1, 9988 Tannberg",
     "0999 / 4712", "post@tvtannberg.example"},
    {"Freiwillige Feuerwehr Tannberg - Sportgruppe", "FF Tannberg", "", "Tannberg", "Korbinian Strößner",
     "Gerätehausgasse 12, 9988 Tannberg", "0999 / 4122", "sport@fftannberg.example"},
    {"Betriebssportverein Sägewerk Moosleitner", "BSV Sägewerk", "", "Tannberg", "Resi Moosleitner",
     "Mühlbachstraße 40, 9988 Tannberg", "0999 / 4740", "sport@moosleitner.example"},
    {"Schiclub Weißenkar", "SC Weißenkar", "8110", "Weißenkar", "Lukas Öttl", "Dorfstraße 8, 9989 Weißenkar",
     "0998 / 5301", "lukas@scweissenkar.example"},
    {"Sportunion Fichtwang", "SU Fichtwang", "8112", "Fichtwang", "Margit Übelhör", "Am Anger 17, 9991 Fichtwang",
     "0997 / 6020", "ski@sufichtwang.example"},
    {"Wintersportverein Hinterschnee", "WSV Hinterschnee", "8115", "Hinterschnee", "Peter-Paul Kreß",
     "Hinterschnee 2, 9992 Hinterschnee", "0996 / 212", "wsv@hinterschnee.example"},
    {"Schiklub Silbermoos", "SK Silbermoos", "8119", "Silbermoos", "Änne Dallmoser", "Seeweg 5, 9993 Silbermoos",
     "0995 / 8080", "info@sksilbermoos.example"},
    {"Schiverein Kaltenegg", "SV Kaltenegg", "8121", "Kaltenegg", "Wastl Rothböck", "Schulgasse 9, 9994 Kaltenegg",
     "0994 / 3377", "sv@kaltenegg.example"},
    {"Rennläuferclub Rauhkofel", "RC Rauhkofel", "8124", "Rauhkofel", "Theres Zangerle-Groß",
     "Liftstraße 1, 9995 Rauhkofel", "0993 / 1414", "rennen@rcrauhkofel.example"},
    {"Naturfreunde Grünjoch", "NF Grünjoch", "8130", "Grünjoch", "Jörg Kühbichl", "Bahnhofstraße 22, 9996 Grünjoch",
     "0992 / 7001", "joerg@nfgruenjoch.example"},
    {"Union Schiclub Obermoosen", "USC Obermoosen", "8133", "Obermoosen", "Elfriede Straßl",
     "Oberdorf 4, 9997 Obermoosen", "0991 / 2525", "usc@obermoosen.example"},
};

constexpr qint16 Weiblich = Sex::Female, Maennlich = Sex::Male, Unbekannt = Sex::NotSet;

/// Birth year 0 = not known; clubs are record numbers, 0 = none.
struct Person {
  const char *name;
  qint16 geschlecht;
  int jahrgang;
  std::array<int, 3> vereine;

  bool complete() const { return geschlecht != Unbekannt && jahrgang != 0; }
  bool isMember(int verein) const { return vereine[0] == verein || vereine[1] == verein || vereine[2] == verein; }
};

constexpr Person People[] = {
    {"AICHBÜHLER Ändra", Weiblich, 2020, {1}},
    {"AICHBÜHLER Jonas", Maennlich, 2017, {1}},
    {"AICHBÜHLER Björn", Maennlich, 1986, {1, 3}},
    {"AICHBÜHLER Katharina", Weiblich, 1989, {1, 2}},
    {"BRÜNNER Ägidius", Maennlich, 1958, {2, 1}},
    {"BRÜNNER Sofie", Weiblich, 2013, {1, 2}},
    {"DALLMOSER Xaver", Maennlich, 2019, {1}},
    {"DALLMOSER Vroni", Weiblich, 2015, {1}},
    {"DALLMOSER Ruppert", Maennlich, 1979, {1, 4}},
    {"EßLETZBICHLER Franziska", Weiblich, 2008, {1}},
    {"EßLETZBICHLER Moritz", Maennlich, 2010, {1}},
    {"EßLETZBICHLER Veit", Maennlich, 1974, {1, 3}},
    {"FÜRSTALLER Lena", Weiblich, 2018, {1}},
    {"FÜRSTALLER Emil", Maennlich, 2016, {1}},
    {"FÜRSTALLER-HAAS Birgit", Weiblich, 1983, {1, 2, 4}},
    {"GSCHÖßL Hannelore", Weiblich, 1961, {1}},
    {"GSCHÖßL Florian", Maennlich, 1992, {1, 3}},
    {"GSCHÖßL Pia", Weiblich, 2021, {1}},
    {"HIRZEGGER Tobias", Maennlich, 2006, {1}},
    {"HIRZEGGER Anna-Lena", Weiblich, 2009, {1}},
    {"HIRZEGGER Johann", Maennlich, 1948, {1}},
    {"INNERKARER Maximilian", Maennlich, 2014, {1, 2}},
    {"INNERKARER Marie", Weiblich, 2012, {1}},
    {"INNERKARER Stefan", Maennlich, 1982, {1, 4}},
    {"JÖCHL Leopold", Maennlich, 2020, {1}},
    {"JÖCHL Theresa", Weiblich, 1997, {1, 2}},
    {"KRÖPFL Matthäus", Maennlich, 2011, {1}},
    {"KRÖPFL Selina", Weiblich, 2014, {1}},
    {"KRÖPFL Gottfried", Maennlich, 1953, {1, 4}},
    {"LANGEGGER-MÜLLER Sabine", Weiblich, 1976, {1, 2}},
    {"LANGEGGER Paul", Maennlich, 2005, {1, 3}},
    {"LANGEGGER Nora", Weiblich, 2007, {1}},
    {"MOOSLEITNER Resi", Weiblich, 1969, {4, 1}},
    {"MOOSLEITNER Andreas", Maennlich, 1996, {4, 1}},
    {"MOOSLEITNER Julia", Weiblich, 2000, {4, 1}},
    {"NÖßLINGER Fabian", Maennlich, 2013, {1}},
    {"NÖßLINGER Clara", Weiblich, 2016, {1}},
    {"NÖßLINGER Bernhard", Maennlich, 1978, {1, 3}},
    {"OBERSCHÜTZ Simon", Maennlich, 2001, {1, 2}},
    {"OBERSCHÜTZ Magdalena", Weiblich, 2003, {1}},
    {"PÖLLHUBER Sebastian", Maennlich, 2017, {1}},
    {"PÖLLHUBER Ida", Weiblich, 2017, {1}},
    {"PÖLLHUBER Richard", Maennlich, 1987, {1, 4}},
    {"QUEHENER Elisabeth", Weiblich, 1994, {1, 2}},
    {"RAINBÖCK Lukas", Maennlich, 2012, {1}},
    {"RAINBÖCK Johanna", Weiblich, 2010, {1}},
    {"RAINBÖCK Ernst", Maennlich, 1967, {1, 3}},
    {"STRÖßNER Korbinian", Maennlich, 1985, {3, 1}},
    {"STRÖßNER Valentin", Maennlich, 2015, {1}},
    {"STRÖßNER Helene", Weiblich, 1955, {1}},
    {"TRÄXLER David", Maennlich, 2008, {1, 2}},
    {"TRÄXLER Emma", Weiblich, 2011, {1}},
    {"UNTERWÖGER Michael", Maennlich, 1999, {1, 3}},
    {"UNTERWÖGER Karl", Maennlich, 1943, {1}},
    {"VÖTTERL Laurenz", Maennlich, 2018, {1}},
    {"VÖTTERL Rosa", Weiblich, 2019, {1}},
    {"VÖTTERL-SÜß Claudia", Weiblich, 1988, {1, 2}},
    {"WEIßKIRCHNER Felix", Maennlich, 2014, {1}},
    {"WEIßKIRCHNER Antonia", Weiblich, 2006, {1, 2}},
    {"WEIßKIRCHNER Gerhard", Maennlich, 1972, {1, 4}},
    {"ZIRNGAST Mathias", Maennlich, 2009, {1}},
    {"ZIRNGAST Elena", Weiblich, 2015, {1}},
    {"ZIRNGAST Ulrike", Weiblich, 1980, {1, 2}},
    {"ZIRNGAST Oskar", Maennlich, 2016, {1}},
    {"ÖTTL Lukas", Maennlich, 1990, {5}},
    {"ÖTTL Miriam", Weiblich, 2010, {5}},
    {"ÖTTL Jakob", Maennlich, 2013, {5}},
    {"ÜBELHÖR Margit", Weiblich, 1971, {6}},
    {"ÜBELHÖR Niklas", Maennlich, 2007, {6}},
    {"ÜBELHÖR Ronja", Weiblich, 2014, {6}},
    {"KREß Peter-Paul", Maennlich, 1963, {7}},
    {"KREß Lorenz", Maennlich, 2011, {7}},
    {"KREß Amelie", Weiblich, 2004, {7}},
    {"ANZENGRÜBL Benedikt", Maennlich, 1998, {8}},
    {"ANZENGRÜBL Leonie", Weiblich, 2012, {8}},
    {"SCHÖNDORFLER Kilian", Maennlich, 2006, {8, 12}},
    {"ROTHBÖCK Wastl", Maennlich, 1975, {9}},
    {"ROTHBÖCK Greta", Weiblich, 2009, {9}},
    {"ROTHBÖCK Hannes", Maennlich, 2014, {9}},
    {"ZANGERLE-GROß Theres", Weiblich, 1984, {10}},
    {"ZANGERLE Raphael", Maennlich, 2010, {10}},
    {"ZANGERLE Viktoria", Weiblich, 2013, {10}},
    {"KÜHBICHL Jörg", Maennlich, 1981, {11, 5}},
    {"KÜHBICHL Mia", Weiblich, 2008, {11}},
    {"KÜHBICHL Anton", Maennlich, 2012, {11}},
    {"STRAßL Elfriede", Weiblich, 1966, {12}},
    {"STRAßL Dominik", Maennlich, 2002, {12}},
    {"STRAßL Alina", Weiblich, 1995, {12, 8}},
    {"VAN DER LÄNDE Piet", Maennlich, 1993, {0}},
    {"FRÜHAUF Kilian", Maennlich, 0, {1}},
    {"REITBAUER Kim", Unbekannt, 2011, {6}},
};

/// Classes `first` to `last` of the standard table that start and are ranked together; with the sexes split, the women
/// before the men.
struct Block {
  int first, last;
  bool gast;
  const char *name;
};

constexpr Block ChampionshipBlocks[] = {
    {1, 2, false, "Bambini"},         {3, 4, false, "Kinder U8/U9"},     {5, 6, false, "Kinder U10/U11"},
    {7, 8, false, "Schüler U12/U13"}, {9, 11, false, "Schüler U14-U16"}, {12, 13, false, "Jugend"},
    {14, 14, false, "Allg. Kl."},     {15, 15, false, "AK 1"},           {16, 17, false, "AK 2/3"},
    {18, 20, false, "AK 4-6"},
};

constexpr Block NightBlocks[] = {
    {1, 8, false, "Schüler bis U13"},      {9, 11, false, "Schüler U14-U16"}, {12, 13, false, "Jugend"},
    {14, 15, false, "Allg. Kl. und AK 1"}, {16, 20, false, "AK 2-6"},         {1, 13, true, "Gäste bis U21"},
    {14, 20, true, "Gäste ab Allg. Kl."},
};

/// What happened to a start number, if it was not simply timed; status 1 = naS, 2 = niZ, 3 = dis.
struct Incident {
  int startNr, run, status;
};

constexpr Incident ChampionshipIncidents[] = {{9, 1, 1}, {17, 1, 2}, {28, 1, 3}, {36, 1, 2}, {47, 1, 1}, {55, 1, 3}};
constexpr Incident NightIncidents[] = {{4, 1, 1},  {11, 1, 2}, {16, 1, 3}, {22, 1, 2},
                                       {27, 2, 2}, {33, 2, 3}, {38, 2, 1}, {42, 1, 1}};
constexpr Incident FirstCupIncidents[] = {{6, 1, 1}, {21, 1, 3}, {40, 1, 2}, {52, 1, 1}};
constexpr Incident SecondCupIncidents[] = {{13, 1, 2}, {30, 1, 3}, {45, 1, 1}};
constexpr Incident ThirdCupIncidents[] = {{3, 1, 3}, {24, 1, 1}, {37, 1, 3}, {50, 1, 2}, {58, 1, 1}};

constexpr const char *Teams[] = {"Die Kantenfresser",  "Torstangen-Express", "Team Hüttenschuß",
                                 "Pulverschnee-Bande", "Sägewerk & Söhne",   "Firn, fesch, flott"};
constexpr const char *Groups[] = {"Zwergerlgruppe", "Schülergruppe Gams", "Rennteam", "Alte Hasen"};

/// What a run takes at an age, against the best years.
struct AgeFactor {
  double age, factor;
};
constexpr AgeFactor AgeFactors[] = {{4, 1.52}, {7, 1.40}, {10, 1.26}, {13, 1.12}, {16, 1.03},
                                    {20, 1.0}, {32, 1.0}, {50, 1.08}, {65, 1.2},  {85, 1.45}};
