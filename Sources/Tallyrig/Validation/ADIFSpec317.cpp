// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Validation/ADIFSpec317.h"

#include "Tallyrig/Log/BandNames.h"
#include "Tallyrig/Validation/ADIFEnumerations317.h"

#include <algorithm>
#include <array>
#include <vector>

namespace tallyrig {

namespace {

using FieldRow = SpecTable<FieldDef>::Row;
using BandRow = SpecTable<BandRange>::Row;
using EnumerationRow = SpecTable<SpecSet>::Row;

constexpr FieldRow fieldRows[] = {
    {"ADDRESS", {"MultilineString"}},
    {"ADDRESS_INTL", {"IntlMultilineString"}},
    {"ADIF_VER", {"String"}},
    {"AGE", {"Number"}},
    {"ALTITUDE", {"Number"}},
    {"ANT_AZ", {"Number"}},
    {"ANT_EL", {"Number"}},
    {"ANT_PATH", {"Enumeration", "ANT_PATH"}},
    {"ARRL_SECT", {"Enumeration", "ARRL_SECTION"}},
    {"AWARD_GRANTED", {"SponsoredAwardList"}},
    {"AWARD_SUBMITTED", {"SponsoredAwardList"}},
    {"A_INDEX", {"Number"}},
    {"BAND", {"Enumeration", "BAND"}},
    {"BAND_RX", {"Enumeration", "BAND"}},
    {"CALL", {"String"}},
    {"CHECK", {"String"}},
    {"CLASS", {"String"}},
    {"CLUBLOG_QSO_UPLOAD_DATE", {"Date"}},
    {"CLUBLOG_QSO_UPLOAD_STATUS", {"Enumeration", "QSO_UPLOAD_STATUS"}},
    {"CNTY", {"Enumeration"}},
    {"CNTY_ALT", {"SecondaryAdministrativeSubdivisionListAlt"}},
    {"COMMENT", {"String"}},
    {"COMMENT_INTL", {"IntlString"}},
    {"CONT", {"Enumeration", "CONT"}},
    {"CONTACTED_OP", {"String"}},
    {"CONTEST_ID", {"String", "CONTEST_ID"}},
    {"COUNTRY", {"String"}},
    {"COUNTRY_INTL", {"IntlString"}},
    {"CQZ", {"PositiveInteger"}},
    {"CREATED_TIMESTAMP", {"String"}},
    {"CREDIT_GRANTED", {"CreditList AwardList (import-only)"}},
    {"CREDIT_SUBMITTED", {"CreditList AwardList (import-only)"}},
    {"DARC_DOK", {"Enumeration"}},
    {"DCL_QSLRDATE", {"Date"}},
    {"DCL_QSLSDATE", {"Date"}},
    {"DCL_QSL_RCVD", {"Enumeration", "QSL_RCVD"}},
    {"DCL_QSL_SENT", {"Enumeration", "QSL_SENT"}},
    {"DISTANCE", {"Number"}},
    {"DXCC", {"Enumeration", "DXCC"}},
    {"EMAIL", {"String"}},
    {"EQSL_AG", {"Enumeration"}},
    {"EQSL_QSLRDATE", {"Date"}},
    {"EQSL_QSLSDATE", {"Date"}},
    {"EQSL_QSL_RCVD", {"Enumeration", "QSL_RCVD"}},
    {"EQSL_QSL_SENT", {"Enumeration", "QSL_SENT"}},
    {"EQ_CALL", {"String"}},
    {"FISTS", {"PositiveInteger"}},
    {"FISTS_CC", {"PositiveInteger"}},
    {"FORCE_INIT", {"Boolean"}},
    {"FREQ", {"Number"}},
    {"FREQ_RX", {"Number"}},
    {"GRIDSQUARE", {"GridSquare"}},
    {"GRIDSQUARE_EXT", {"GridSquareExt"}},
    {"GUEST_OP", {"String"}},
    {"HAMLOGEU_QSO_UPLOAD_DATE", {"Date"}},
    {"HAMLOGEU_QSO_UPLOAD_STATUS", {"Enumeration", "QSO_UPLOAD_STATUS"}},
    {"HAMQTH_QSO_UPLOAD_DATE", {"Date"}},
    {"HAMQTH_QSO_UPLOAD_STATUS", {"Enumeration", "QSO_UPLOAD_STATUS"}},
    {"HRDLOG_QSO_UPLOAD_DATE", {"Date"}},
    {"HRDLOG_QSO_UPLOAD_STATUS", {"Enumeration", "QSO_UPLOAD_STATUS"}},
    {"IOTA", {"IOTARefNo"}},
    {"IOTA_ISLAND_ID", {"PositiveInteger"}},
    {"ITUZ", {"PositiveInteger"}},
    {"K_INDEX", {"Integer"}},
    {"LAT", {"Location"}},
    {"LON", {"Location"}},
    {"LOTW_QSLRDATE", {"Date"}},
    {"LOTW_QSLSDATE", {"Date"}},
    {"LOTW_QSL_RCVD", {"Enumeration", "QSL_RCVD"}},
    {"LOTW_QSL_SENT", {"Enumeration", "QSL_SENT"}},
    {"MAX_BURSTS", {"Number"}},
    {"MODE", {"Enumeration", "MODE"}},
    {"MORSE_KEY_INFO", {"String"}},
    {"MORSE_KEY_TYPE", {"Enumeration"}},
    {"MS_SHOWER", {"String"}},
    {"MY_ALTITUDE", {"Number"}},
    {"MY_ANTENNA", {"String"}},
    {"MY_ANTENNA_INTL", {"IntlString"}},
    {"MY_ARRL_SECT", {"Enumeration", "ARRL_SECTION"}},
    {"MY_CITY", {"String"}},
    {"MY_CITY_INTL", {"IntlString"}},
    {"MY_CNTY", {"Enumeration"}},
    {"MY_CNTY_ALT", {"SecondaryAdministrativeSubdivisionListAlt"}},
    {"MY_COUNTRY", {"String"}},
    {"MY_COUNTRY_INTL", {"IntlString"}},
    {"MY_CQ_ZONE", {"PositiveInteger"}},
    {"MY_DARC_DOK", {"Enumeration"}},
    {"MY_DXCC", {"Enumeration", "DXCC"}},
    {"MY_FISTS", {"PositiveInteger"}},
    {"MY_GRIDSQUARE", {"GridSquare"}},
    {"MY_GRIDSQUARE_EXT", {"GridSquareExt"}},
    {"MY_IOTA", {"IOTARefNo"}},
    {"MY_IOTA_ISLAND_ID", {"PositiveInteger"}},
    {"MY_ITU_ZONE", {"PositiveInteger"}},
    {"MY_LAT", {"Location"}},
    {"MY_LON", {"Location"}},
    {"MY_MORSE_KEY_INFO", {"String"}},
    {"MY_MORSE_KEY_TYPE", {"Enumeration"}},
    {"MY_NAME", {"String"}},
    {"MY_NAME_INTL", {"IntlString"}},
    {"MY_POSTAL_CODE", {"String"}},
    {"MY_POSTAL_CODE_INTL", {"IntlString"}},
    {"MY_POTA_REF", {"POTARefList"}},
    {"MY_RIG", {"String"}},
    {"MY_RIG_INTL", {"IntlString"}},
    {"MY_SIG", {"String"}},
    {"MY_SIG_INFO", {"String"}},
    {"MY_SIG_INFO_INTL", {"IntlString"}},
    {"MY_SIG_INTL", {"IntlString"}},
    {"MY_SOTA_REF", {"SOTARef"}},
    {"MY_STATE", {"Enumeration"}},
    {"MY_STREET", {"String"}},
    {"MY_STREET_INTL", {"IntlString"}},
    {"MY_USACA_COUNTIES", {"SecondarySubdivisionList"}},
    {"MY_VUCC_GRIDS", {"GridSquareList"}},
    {"MY_WWFF_REF", {"WWFFRef"}},
    {"NAME", {"String"}},
    {"NAME_INTL", {"IntlString"}},
    {"NOTES", {"MultilineString"}},
    {"NOTES_INTL", {"IntlMultilineString"}},
    {"NR_BURSTS", {"Integer"}},
    {"NR_PINGS", {"Integer"}},
    {"OPERATOR", {"String"}},
    {"OWNER_CALLSIGN", {"String"}},
    {"PFX", {"String"}},
    {"POTA_REF", {"POTARefList"}},
    {"PRECEDENCE", {"String"}},
    {"PROGRAMID", {"String"}},
    {"PROGRAMVERSION", {"String"}},
    {"PROP_MODE", {"Enumeration", "PROP_MODE"}},
    {"PUBLIC_KEY", {"String"}},
    {"QRZCOM_QSO_DOWNLOAD_DATE", {"Date"}},
    {"QRZCOM_QSO_DOWNLOAD_STATUS", {"Enumeration"}},
    {"QRZCOM_QSO_UPLOAD_DATE", {"Date"}},
    {"QRZCOM_QSO_UPLOAD_STATUS", {"Enumeration", "QSO_UPLOAD_STATUS"}},
    {"QSLMSG", {"MultilineString"}},
    {"QSLMSG_INTL", {"IntlMultilineString"}},
    {"QSLMSG_RCVD", {"MultilineString"}},
    {"QSLRDATE", {"Date"}},
    {"QSLSDATE", {"Date"}},
    {"QSL_RCVD", {"Enumeration", "QSL_RCVD"}},
    {"QSL_RCVD_VIA", {"Enumeration", "QSL_VIA"}},
    {"QSL_SENT", {"Enumeration", "QSL_SENT"}},
    {"QSL_SENT_VIA", {"Enumeration", "QSL_VIA"}},
    {"QSL_VIA", {"String"}},
    {"QSO_COMPLETE", {"Enumeration", "QSO_COMPLETE"}},
    {"QSO_DATE", {"Date"}},
    {"QSO_DATE_OFF", {"Date"}},
    {"QSO_RANDOM", {"Boolean"}},
    {"QTH", {"String"}},
    {"QTH_INTL", {"IntlString"}},
    {"REGION", {"Enumeration"}},
    {"RIG", {"MultilineString"}},
    {"RIG_INTL", {"IntlMultilineString"}},
    {"RST_RCVD", {"String"}},
    {"RST_SENT", {"String"}},
    {"RX_PWR", {"Number"}},
    {"SAT_MODE", {"String"}},
    {"SAT_NAME", {"String"}},
    {"SFI", {"Integer"}},
    {"SIG", {"String"}},
    {"SIG_INFO", {"String"}},
    {"SIG_INFO_INTL", {"IntlString"}},
    {"SIG_INTL", {"IntlString"}},
    {"SILENT_KEY", {"Boolean"}},
    {"SKCC", {"String"}},
    {"SOTA_REF", {"SOTARef"}},
    {"SRX", {"Integer"}},
    {"SRX_STRING", {"String"}},
    {"STATE", {"Enumeration"}},
    {"STATION_CALLSIGN", {"String"}},
    {"STX", {"Integer"}},
    {"STX_STRING", {"String"}},
    {"SUBMODE", {"String", "SUBMODE"}},
    {"SWL", {"Boolean"}},
    {"TEN_TEN", {"PositiveInteger"}},
    {"TIME_OFF", {"Time"}},
    {"TIME_ON", {"Time"}},
    {"TX_PWR", {"Number"}},
    {"UKSMG", {"PositiveInteger"}},
    {"USACA_COUNTIES", {"SecondarySubdivisionList"}},
    {"USERDEFN", {"String"}},
    {"VE_PROV", {"String"}},
    {"VUCC_GRIDS", {"GridSquareList"}},
    {"WEB", {"String"}},
    {"WWFF_REF", {"WWFFRef"}},
};

constexpr BandRow bandRows[] = {
    {band::m2190, {0.1357, 0.1378}}, {band::m630, {0.472, 0.479}},  {band::m560, {0.501, 0.504}},
    {band::m160, {1.8, 2}},          {band::m80, {3.5, 4}},         {band::m60, {5.06, 5.45}},
    {band::m40, {7, 7.3}},           {band::m30, {10.1, 10.15}},    {band::m20, {14, 14.35}},
    {band::m17, {18.068, 18.168}},   {band::m15, {21, 21.45}},      {band::m12, {24.89, 24.99}},
    {band::m10, {28, 29.7}},         {band::m8, {40, 45}},          {band::m6, {50, 54}},
    {band::m5, {54.000001, 69.9}},   {band::m4, {70, 71}},          {band::m2, {144, 148}},
    {band::m1And25, {222, 225}},     {band::cm70, {420, 450}},      {band::cm33, {902, 928}},
    {band::cm23, {1240, 1300}},      {band::cm13, {2300, 2450}},    {band::cm9, {3300, 3500}},
    {band::cm6, {5650, 5925}},       {band::cm3, {10000, 10500}},   {band::cm1And25, {24000, 24250}},
    {band::mm6, {47000, 47200}},     {band::mm4, {75500, 81000}},   {band::mm2And5, {119980, 123000}},
    {band::mm2, {134000, 149000}},   {band::mm1, {241000, 250000}}, {band::submm, {300000, 7500000}},
};

static_assert(std::ranges::is_sorted(fieldRows, {}, &FieldRow::name));
static_assert(std::ranges::is_sorted(bandRows, {}, [](const BandRow& row) { return row.value.lower; }));

std::vector<EnumerationRow> makeEnumerationRows() {
    static constexpr auto bands = [] {
        std::array<std::string_view, std::size(bandRows)> names;
        std::ranges::transform(bandRows, names.begin(), &BandRow::name);
        return names;
    }();
    std::vector<EnumerationRow> rows = {{"BAND", SpecSet(bands)}};
    for (const EnumerationValues& enumeration : enumerationValues317()) {
        rows.push_back({enumeration.key, SpecSet(enumeration.values)});
    }
    return rows;
}

}  // namespace

const SpecTable<FieldDef>& ADIFSpec::fields() {
    static const SpecTable<FieldDef> table(fieldRows);
    return table;
}

const SpecTable<SpecSet>& ADIFSpec::enumerations() {
    static const std::vector<EnumerationRow> rows = makeEnumerationRows();
    static const SpecTable<SpecSet> table(rows);
    return table;
}

const SpecTable<BandRange>& ADIFSpec::bandFrequencies() {
    static const SpecTable<BandRange> table(bandRows);
    return table;
}

}  // namespace tallyrig
