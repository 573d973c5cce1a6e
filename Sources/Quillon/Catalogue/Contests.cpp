// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/Contests.h"

#include "Tallyrig/Contest/ContestTemplates.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace quillon {

namespace {

using tallyrig::ContestRules;
using tallyrig::ContestStation;
using tallyrig::ContestTemplates;

struct Row {
    Contest contest;
    std::string_view rawValue;
    ContestRules (*rules)(const ContestStation&);  ///< Null for the contest of one's own.
    std::string_view label;
    std::string_view info;
};

// Kept by hand: one paragraph for each contest.
// clang-format off

constexpr Row rows[] = {
    {Contest::helvetia, "helvetia", ContestTemplates::helvetia,
     "Helvetia",
     "USKA Helvetia. Austausch RST + Kanton (HB) bzw. lfd. Nr. Punkte: HB-Station 10, gleicher "
     "Kontinent 1, anderer 3. Multi je Band: Kantone (aus SRX_STRING/STATE) + DXCC-Länder."},
    {Contest::uskaXmas, "uskaXmas", ContestTemplates::uskaXmas,
     "USKA Weihnachtswettbewerb",
     "USKA Weihnachtswettbewerb: nur QSOs mit HB-Stationen, 80/40 m, 1 Punkt/QSO. Multi: Kanton je"
     " Band (aus SRX_STRING/STATE)."},
    {Contest::fieldDay, "fieldDay", ContestTemplates::fieldDay,
     "USKA Field Day",
     "USKA Field Day: Punkte je Partner – fest/EU 2, fest/DX 3, portabel/EU 4, portabel/DX 6 "
     "(portabel = /P,/M,/MM,/AM). Multi: DXCC/WAE-Gebiet je Band."},
    {Contest::nmd, "nmd", ContestTemplates::nmd,
     "NMD (National Mountain Day)",
     "NMD (National Mountain Day): 80 m. QSO mit Portabel-/NMD-Station 4 Punkte, sonst 1; keine "
     "Multiplikatoren. NMD-Erkennung über /P (Näherung)."},
    {Contest::iaruHF, "iaruHF", ContestTemplates::iaruHF,
     "IARU HF",
     "Austausch RST + ITU-Zone. Punkte: gleiche Zone 1, gleicher Kontinent 3, anderer 5. Multi: "
     "ITU-Zonen je Band."},
    {Contest::waeDX, "waeDX", ContestTemplates::waeDX,
     "WAE DX",
     "Nur interkontinentale QSOs, 1 Punkt. Multi: Länder je Band, bandgewichtet (80m ×4, 40m ×3, "
     "sonst ×2). QTCs werden nicht geprüft."},
    {Contest::wag, "wag", ContestTemplates::wag,
     "Worked All Germany",
     "Aus DL-Sicht 1/3/5 Punkte (DL/EU/DX). Sonst: nur QSOs mit DL = 3 Punkte, Multi = DL-Distrikt"
     " (Feld DOK)."},
    {Contest::cqWW, "cqWW", ContestTemplates::cqWW,
     "CQ WW DX",
     "Austausch RST + CQ-Zone (Feld CQZ). Punkte: gleiches Land 0, NA↔NA 2, gleicher Kontinent 1, "
     "anderer 3. Multi: CQ-Zonen + Länder je Band."},
    {Contest::cqWPX, "cqWPX", ContestTemplates::cqWPX,
     "CQ WPX",
     "Austausch RST + lfd. Nr. Punkte je Bandgruppe (hoch/tief). Multi: WPX-Präfixe (einmalig, aus"
     " dem Rufzeichen)."},
    {Contest::cqWWRtty, "cqWWRtty", ContestTemplates::cqWWRtty,
     "CQ WW RTTY",
     "CQ WW RTTY. Austausch RST + CQ-Zone (W/VE auch Staat). Punkte: gleiches Land 1, gleicher "
     "Kontinent 2, anderer 3. Multi: CQ-Zonen + Länder + W/VE-Staaten je Band."},
    {Contest::cqWPXRtty, "cqWPXRtty", ContestTemplates::cqWPXRtty,
     "CQ WPX RTTY",
     "CQ WPX RTTY. Wertung wie CQ WPX: bandgruppierte Punkte, Multi WPX-Präfixe (einmalig)."},
    {Contest::arrlDX, "arrlDX", ContestTemplates::arrlDX,
     "ARRL DX",
     "ARRL International DX. 3 Punkte/QSO. Aus DX-Sicht nur QSOs mit W/VE; Multi US-Staaten/VE-"
     "Provinzen je Band (aus STATE/SRX_STRING)."},
    {Contest::euHFChamp, "euHFChamp", ContestTemplates::euHFChampionship,
     "EU HF Championship",
     "European HF Championship (S5). 1 Punkt/QSO. Austausch RST + 2-stellige Lizenzjahr-Zahl; "
     "Multi: verschiedene Jahres-Zahlen je Band (Austauschfeld SRX_STRING/SRX)."},
    {Contest::ref, "ref", ContestTemplates::ref,
     "REF (Coupe du REF)",
     "REF (Coupe du REF). Nur QSOs mit F-Stationen (F + Korsika). Punkte: gleicher Kontinent 1, "
     "anderer 3. Multi: franz. Departement (Austausch) je Band."},
    {Contest::sac, "sac", ContestTemplates::sac,
     "SAC (Scandinavian Activity)",
     "Scandinavian Activity Contest. Nur QSOs mit skandinavischen Stationen. EU 1 Punkt (DX 1 auf "
     "14/21/28, 3 auf 3.5/7). Multi: Rufgebiet je skand. DXCC je Band."},
    {Contest::eucwUFT, "eucwUFT", ContestTemplates::eucwUFT,
     "EUCW / UFT (CW)",
     "EUCW/UFT (CW). Punkte: gleiches Land 1, gleicher Kontinent 2, anderer 5. Multi: EUCW-Club "
     "aus dem Austausch (SRX_STRING). Näherung – HQ-Stationen (10 Pkt) nicht erkannt."},
    {Contest::aaDX, "aaDX", ContestTemplates::aaDX,
     "All Asian DX",
     "All Asian DX (JARL). Aus Nicht-Asien-Sicht nur QSOs mit asiatischen Stationen. Punkte je "
     "Band: 160 m 3, 80 m 2, 10 m 2, sonst 1. Multi: asiatische WPX-Präfixe je Band. Austausch RST"
     " + Alter (kein Wertungselement)."},
    {Contest::jidx, "jidx", ContestTemplates::jidx,
     "JIDX",
     "JIDX (JARL). Aus DX-Sicht nur QSOs mit japanischen Stationen (Japan, Ogasawara, Minami-"
     "Torishima). Punkte je Band: 160 m 4, 80 m 2, 10 m 2, sonst 1. Multi: JA-Präfekturnummern je "
     "Band (aus dem Austausch)."},
    {Contest::russianDX, "russianDX", ContestTemplates::russianDX,
     "Russian DX",
     "Russian DX (SRR). Alle arbeiten alle. Punkte: russische Station 10, eigenes Land 2, gl. "
     "Kontinent 3, anderer 5. Multi je Band: Oblaste (aus dem Austausch) + DXCC-Länder."},
    {Contest::arrlRTTYRoundup, "arrlRTTYRoundup", ContestTemplates::arrlRTTYRoundup,
     "ARRL RTTY Roundup",
     "ARRL RTTY Roundup. Alle arbeiten alle, 1 Punkt/QSO. Multiplikatoren einmalig (nicht je "
     "Band): US-Staaten/Provinzen + DXCC-Länder ohne USA/Kanada. Bänder 80–10 m."},
    {Contest::swissEmergency, "swissEmergency", ContestTemplates::swissEmergency,
     "Swiss Emergency Contest",
     "USKA Swiss Emergency Contest (Notfunk). Austausch RS + PLZ. 1 Punkt/QSO, Multiplikator = "
     "verschiedene PLZ je Band. Endscore = Summe je Band von QSOs × PLZ. Dubletten nur auf HF; "
     "Relais-QSOs auf 2 m/70 cm zählen mehrfach."},
    {Contest::mhz50, "mhz50", ContestTemplates::mhz50,
     "50 MHz (6 m)",
     "IARU R1 / USKA 50 MHz (6 m). Austausch RST + lfd. Nr. + Locator. Punkte = Distanz in km "
     "(abgerundet + 1). Multi: Locator-Großfelder je Band."},
    {Contest::iaruVHFUHF, "iaruVHFUHF", ContestTemplates::iaruVHFUHF,
     "IARU R1 VHF/UHF",
     "IARU R1 VHF/UHF (144 MHz, 432 MHz & höher). Austausch RST + lfd. Nr. + Locator. Punkte = "
     "Distanz in km (abgerundet + 1). Multi: Locator-Großfelder je Band."},
    {Contest::iaruR1VHF, "iaruR1VHF", ContestTemplates::iaruR1VHF,
     "IARU R1 VHF (144 MHz)",
     "IARU R1 VHF (144 MHz, 1. Wochenende Sept.). Nur 2 m. Austausch RST + lfd. Nr. + Locator. "
     "Endscore je Band = km-Summe × Locator-Großfelder."},
    {Contest::iaruR1UHF, "iaruR1UHF", ContestTemplates::iaruR1UHF,
     "IARU R1 UHF/Mikrowelle",
     "IARU R1 UHF/Mikrowelle (432 MHz & höher, 1. Wochenende Okt.). Austausch RST + lfd. Nr. + "
     "Locator. Wertung wie VHF: km × Großfelder je Band."},
    {Contest::darcUKW, "darcUKW", ContestTemplates::darcUKW,
     "DARC UKW-Contest",
     "DARC UKW-Contest (6 m – 3 cm). Austausch RST + lfd. Nr. + Locator. Endscore je Band = km-"
     "Summe × Locator-Großfelder."},
    {Contest::helvetiaVHF, "helvetiaVHF", ContestTemplates::helvetiaVHF,
     "Helvetia VHF/UHF/Microwaves",
     "USKA Helvetia VHF/UHF/Microwaves (H26), Juli. Bänder 2 m–122 GHz. Austausch RST + lfd. Nr. +"
     " Locator. Endscore je Band = km-Summe × Locator-Großfelder (KEINE Kantone)."},
    {Contest::marconiVHF, "marconiVHF", ContestTemplates::marconiVHF,
     "Marconi Memorial (144 MHz CW)",
     "Marconi Memorial (IARU R1), 144 MHz nur CW. Austausch RST + lfd. Nr. + Locator. Endscore = "
     "reine km-Summe (1 Punkt/km), keine Multiplikatoren."},
    {Contest::agcwVHFUHF, "agcwVHFUHF", ContestTemplates::agcwVHFUHF,
     "AGCW VHF/UHF (CW)",
     "AGCW VHF/UHF (CW), 2 m + 70 cm. Austausch RST + lfd. Nr. + Locator. Endscore = reine km-"
     "Summe (1 Punkt/km), keine Multiplikatoren."},
    {Contest::alpeAdriaVHF, "alpeAdriaVHF", ContestTemplates::alpeAdriaVHF,
     "Alpe-Adria VHF",
     "Alpe-Adria VHF (144 MHz, CW/SSB). Austausch RST + lfd. Nr. + Locator. Endscore = reine km-"
     "Summe (1 Punkt/km), keine Multiplikatoren."},
    {Contest::alpeAdriaUHF, "alpeAdriaUHF", ContestTemplates::alpeAdriaUHF,
     "Alpe-Adria UHF/SHF",
     "Alpe-Adria UHF/SHF (432 MHz und höher). Austausch RST + lfd. Nr. + Locator. Endscore = reine"
     " km-Summe (1 Punkt/km), keine Multiplikatoren."},
    {Contest::vhf, "vhf", ContestTemplates::vhfDistance,
     "UKW (Distanz)",
     "Distanz-Punkte (km) über Locator. Multi: Großfelder je Band."},
    {Contest::generic, "generic", nullptr,
     "Eigen / Generisch",
     "Frei konfigurierbar – siehe Felder unten."},
};

// clang-format on

/// The rows stand in the order of the cases.
const Row& rowOf(Contest contest) {
    return rows[static_cast<std::size_t>(contest)];
}

}  // namespace

std::string_view rawValue(Contest contest) {
    return rowOf(contest).rawValue;
}

std::optional<Contest> contestNamed(std::string_view rawValue) {
    const Row* const row = std::ranges::find(rows, rawValue, &Row::rawValue);
    return row == std::end(rows) ? std::nullopt : std::optional(row->contest);
}

std::string_view label(Contest contest) {
    return rowOf(contest).label;
}

std::string_view info(Contest contest) {
    return rowOf(contest).info;
}

ContestRules rulesOf(Contest contest, const GenericContest& generic, const ContestStation& station) {
    const Row& row = rowOf(contest);
    return row.rules == nullptr ? generic.rules(station) : row.rules(station);
}

}  // namespace quillon
