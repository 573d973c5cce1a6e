// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Catalogue/ADIFFieldCatalog.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>

namespace quillon {
namespace {

namespace finding = tallyrig::finding;

TEST(FieldLabels, AreGermanWhereThereIsAWord) {
    const std::pair<const char*, const char*> cases[] = {
        {"call", "Rufzeichen"}, {"Time_On", "Zeit (Anfang)"}, {"app_foo", "APP_FOO"}, {"straße", "STRASSE"}};
    for (const auto& [name, label] : cases) {
        EXPECT_EQ(ADIFFieldCatalog::label(name), label) << name;
    }
}

TEST(Explanations, SayWhatIsToBeFilledIn) {
    const std::pair<const char*, const char*> cases[] = {
        {"qso_date", "ADIF-Feld QSO_DATE. Ein Datum mit acht Ziffern, Jahr, Monat und Tag: 20240315."},
        {"QSL_SENT", "ADIF-Feld QSL_SENT. Einer dieser Werte: Y, N, R, Q, I."},
        {"MODE", "ADIF-Feld MODE. Ein Wert aus einer Liste, die ADIF vorgibt."},
        {"GRIDSQUARE_EXT", "ADIF-Feld GRIDSQUARE_EXT. Seine Form heißt in ADIF GridSquareExt."},
        {"XYZ", "XYZ ist kein Feld von ADIF 3.1.7. Andere Programme übergehen es vielleicht."},
    };
    for (const auto& [name, explanation] : cases) {
        EXPECT_EQ(ADIFFieldCatalog::explanation(name), explanation);
    }
}

TEST(Messages, SayInGermanWhatWasFound) {
    const std::pair<tallyrig::ValidationKind, const char*> cases[] = {
        {finding::InvalidDate{"QSLRDATE", "2024"}, "Ungültiges Datum: 2024"},
        {finding::InvalidTime{"TIME_ON", "2400"}, "Ungültige Zeit (Zeit (Anfang)): 2400"},
        {finding::Duplicate{{"CALL", "my_rig"}, {3, 7}},
         "Mögliche Dublette (Rufzeichen, MY_RIG) – auch in Zeile 3, 7"},
        {finding::UnknownField{"XYZ"}, "Unbekanntes Feld (nicht in ADIF 3.1.7): XYZ"},
        {finding::InvalidValue{"TX_PWR", "abc", "Number"},
         "Sendeleistung (W): \"abc\" passt nicht zum Typ Number"},
        {finding::OutdoorInvalidReference{"POTA", "MY_SIG_INFO", "DE-1"}, "POTA: ungültige Referenz: DE-1"},
        {finding::OutdoorWrongSig{"BOTA", "POTA"},
         "BOTA: MY_SIG ist POTA, erwartet BOTA – gehört das QSO zu einem anderen Programm? "
         "(Export setzt es auf BOTA)"},
    };
    for (const auto& [kind, message] : cases) {
        EXPECT_EQ(ADIFFieldCatalog::germanMessage({0, kind}), message);
    }
}

TEST(Dates, AreShownDayFirst) {
    const std::pair<std::optional<std::string_view>, const char*> cases[] = {
        {"20240115", "15.01.2024"},
        {"2024", "2024"},
        {"202401155", "202401155"},
        {"abcdefgh", "gh.ef.abcd"},
        {std::nullopt, ""},
        // A letter with a combining mark is one character, CR LF too.
        {"2024011e\xCC\x81", "1e\xCC\x81.01.2024"},
        {"2024011\r\n", "1\r\n.01.2024"},
    };
    for (const auto& [value, shown] : cases) {
        EXPECT_EQ(ADIFFieldCatalog::formatDate(value), shown) << value.value_or("absent");
    }
}

TEST(Times, AreShownWithColons) {
    const std::pair<std::optional<std::string_view>, const char*> cases[] = {
        {"12345", "12:34"}, {"123456", "12:34:56"},         {"12345678", "12:34:56"}, {"123", "123"},
        {std::nullopt, ""}, {"12e\xCC\x81", "12e\xCC\x81"}, {"äöüß", "äö:üß"},
    };
    for (const auto& [value, shown] : cases) {
        EXPECT_EQ(ADIFFieldCatalog::formatTime(value), shown) << value.value_or("absent");
    }
}

TEST(Cells, ShowTheDatesAndTimesOfTheQSOReadably) {
    EXPECT_EQ(ADIFFieldCatalog::displayValue("20240115", "qso_date_off"), "15.01.2024");
    EXPECT_EQ(ADIFFieldCatalog::displayValue("1234", "TIME_ON"), "12:34");
    EXPECT_EQ(ADIFFieldCatalog::displayValue("20240115", "QSLRDATE"), "20240115");
    EXPECT_EQ(ADIFFieldCatalog::displayValue(std::nullopt, "CALL"), "");
}

}  // namespace
}  // namespace quillon
