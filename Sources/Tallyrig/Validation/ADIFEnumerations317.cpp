// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tallyrig/Validation/ADIFEnumerations317.h"

namespace tallyrig {

namespace {

// Packed by hand: the formatter gives the long lists a line for each value.
// clang-format off

constexpr std::string_view antPathValues[] = {"G", "O", "S", "L"};

constexpr std::string_view arrlSectionValues[] = {
    "AL", "AK", "AB", "AR", "AZ", "BC", "CO", "CT", "DE", "EB", "EMA", "ENY", "EPA", "EWA", "GA", "GH", "GTA",
    "ID", "IL", "IN", "IA", "KS", "KY", "LAX", "LA", "ME", "MB", "MAR", "MDC", "MI", "MN", "MS", "MO", "MT",
    "NE", "NV", "NB", "NH", "NM", "NLI", "NL", "NC", "ND", "NTX", "NFL", "NNJ", "NNY", "NT", "NWT", "NS",
    "OH", "OK", "ON", "ONE", "ONN", "ONS", "ORG", "OR", "PAC", "PE", "PR", "QC", "RI", "SV", "SDG", "SF",
    "SJV", "SB", "SCV", "SK", "SC", "SD", "STX", "SFL", "SNJ", "TN", "TER", "VI", "UT", "VT", "VA", "WCF",
    "WTX", "WV", "WMA", "WNY", "WPA", "WWA", "WI", "WY",
};

constexpr std::string_view contValues[] = {"NA", "SA", "EU", "AF", "OC", "AS", "AN"};

constexpr std::string_view contestIDValues[] = {
    "070-160M-SPRINT", "070-3-DAY", "070-31-FLAVORS", "070-40M-SPRINT", "070-80M-SPRINT", "070-PSKFEST",
    "070-ST-PATS-DAY", "070-VALENTINE-SPRINT", "10-RTTY", "1010-OPEN-SEASON", "7QP", "AL-QSO-PARTY",
    "ALL-ASIAN-DX-CW", "ALL-ASIAN-DX-PHONE", "ANARTS-RTTY", "ANATOLIAN-RTTY", "AP-SPRINT", "AR-QSO-PARTY",
    "ARI-DX", "ARI-EME", "ARI-IAC-13CM", "ARI-IAC-23CM", "ARI-IAC-6M", "ARI-IAC-UHF", "ARI-IAC-VHF",
    "ARRL-10", "ARRL-10-GHZ", "ARRL-160", "ARRL-222", "ARRL-DIGI", "ARRL-DX-CW", "ARRL-DX-SSB", "ARRL-EME",
    "ARRL-FIELD-DAY", "ARRL-RR-CW", "ARRL-RR-RTTY", "ARRL-RR-SSB", "ARRL-RTTY", "ARRL-SCR", "ARRL-SS-CW",
    "ARRL-SS-SSB", "ARRL-UHF-AUG", "ARRL-VHF-JAN", "ARRL-VHF-JUN", "ARRL-VHF-SEP", "AZ-QSO-PARTY",
    "BANGGAI-DX", "BARTG-RTTY", "BARTG-SPRINT", "BC-QSO-PARTY", "BEKASI-MERDEKA-CONTEST", "CA-QSO-PARTY",
    "CIS-DX", "CO-QSO-PARTY", "CQ-160-CW", "CQ-160-SSB", "CQ-M", "CQ-VHF", "CQ-WPX-CW", "CQ-WPX-RTTY",
    "CQ-WPX-SSB", "CQ-WW-CW", "CQ-WW-RTTY", "CQ-WW-SSB", "CT-QSO-PARTY", "CVA-DX-CW", "CVA-DX-SSB",
    "CWOPS-CW-OPEN", "CWOPS-CWT", "DARC-10", "DARC-CWA", "DARC-FT4", "DARC-HELL", "DARC-MICROWAVE",
    "DARC-TRAINEE", "DARC-UKW-SPRING", "DARC-UKW-FIELD-DAY", "DARC-VHF-UHF-MICROWAVE", "DARC-WAEDC-CW",
    "DARC-WAEDC-RTTY", "DARC-WAEDC-SSB", "DARC-WAG", "DE-QSO-PARTY", "DL-DX-RTTY", "DMC-RTTY", "EA-CNCW",
    "EA-DME", "EA-MAJESTAD-CW", "EA-MAJESTAD-SSB", "EA-PSK63", "EA-RTTY", "EA-SMRE-CW", "EA-SMRE-SSB",
    "EA-VHF-ATLANTIC", "EA-VHF-COM", "EA-VHF-COSTA-SOL", "EA-VHF-EA", "EA-VHF-EA1RCS", "EA-VHF-QSL",
    "EA-VHF-SADURNI", "EA-WW-RTTY", "EASTER", "EPC-PSK63", "EU SPRINT", "EU-HF", "EU-PSK-DX", "EUCW160M",
    "FALL SPRINT", "FL-QSO-PARTY", "GA-QSO-PARTY", "HA-DX", "HELVETIA", "HI-QSO-PARTY", "HOLYLAND",
    "IA-QSO-PARTY", "IARU-FIELD-DAY", "IARU-HF", "ICWC-MST", "ID-QSO-PARTY", "IL QSO PARTY", "IN-QSO-PARTY",
    "JARTS-WW-RTTY", "JIDX-CW", "JIDX-SSB", "JT-DX-RTTY", "K1USN-SSO", "K1USN-SST", "KS-QSO-PARTY",
    "KY-QSO-PARTY", "LA-QSO-PARTY", "LDC-RTTY", "LZ DX", "MAR-QSO-PARTY", "MD-QSO-PARTY", "ME-QSO-PARTY",
    "MI-QSO-PARTY", "MIDATLANTIC-QSO-PARTY", "MN-QSO-PARTY", "MO-QSO-PARTY", "MS-QSO-PARTY", "MT-QSO-PARTY",
    "NA-SPRINT-CW", "NA-SPRINT-RTTY", "NA-SPRINT-SSB", "NAQP-CW", "NAQP-RTTY", "NAQP-SSB", "NAVAL",
    "NC-QSO-PARTY", "ND-QSO-PARTY", "NE-QSO-PARTY", "NEQP", "NH-QSO-PARTY", "NJ-QSO-PARTY", "NM-QSO-PARTY",
    "NRAU-BALTIC-CW", "NRAU-BALTIC-SSB", "NV-QSO-PARTY", "NY-QSO-PARTY", "OCEANIA-DX-CW", "OCEANIA-DX-SSB",
    "OH-QSO-PARTY", "OK-DX-RTTY", "OK-OM-DX", "OK-QSO-PARTY", "OMISS-QSO-PARTY", "ON-QSO-PARTY",
    "OR-QSO-PARTY", "ORARI-DX", "PA-QSO-PARTY", "PACC", "PCC", "PSK-DEATHMATCH", "QC-QSO-PARTY", "RAC",
    "RAC-CANADA-DAY", "RAC-CANADA-WINTER", "RDAC", "RDXC", "REF-160M", "REF-CW", "REF-SSB",
    "REP-PORTUGAL-DAY-HF", "RI-QSO-PARTY", "RSGB-160", "RSGB-21/28-CW", "RSGB-21/28-SSB", "RSGB-80M-CC",
    "RSGB-AFS-CW", "RSGB-AFS-SSB", "RSGB-CLUB-CALLS", "RSGB-COMMONWEALTH", "RSGB-IOTA", "RSGB-LOW-POWER",
    "RSGB-NFD", "RSGB-ROPOCO", "RSGB-SSB-FD", "RUSSIAN-RTTY", "SAC-CW", "SAC-SSB", "SARTG-RTTY",
    "SC-QSO-PARTY", "SCC-RTTY", "SD-QSO-PARTY", "SHORTRY", "SMP-AUG", "SMP-MAY", "SP-DX-RTTY",
    "SPAR-WINTER-FD", "SPDXCONTEST", "SPRING SPRINT", "SR-MARATHON", "STEW-PERRY", "SUMMER SPRINT",
    "TARA-GRID-DIP", "TARA-RTTY", "TARA-RUMBLE", "TARA-SKIRMISH", "TEN-RTTY", "TMC-RTTY", "TN-QSO-PARTY",
    "TX-QSO-PARTY", "UBA-DX-CW", "UBA-DX-SSB", "UK-DX-BPSK63", "UK-DX-RTTY", "UKR-CHAMP-RTTY", "UKRAINIAN DX",
    "UKSMG-6M-MARATHON", "UKSMG-SUMMER-ES", "URE-DX", "US-COUNTIES-QSO", "UT-QSO-PARTY", "VA-QSO-PARTY",
    "VENEZ-IND-DAY", "VIRGINIA QSO PARTY", "VOLTA-RTTY", "VT-QSO-PARTY", "WA-QSO-PARTY", "WFD",
    "WI-QSO-PARTY", "WIA-HARRY ANGEL", "WIA-JMMFD", "WIA-OCDX", "WIA-REMEMBRANCE", "WIA-ROSS HULL",
    "WIA-TRANS TASMAN", "WIA-VHF/UHF FD", "WIA-VK SHIRES", "WINTER SPRINT", "WV-QSO-PARTY", "WW-DIGI",
    "WY-QSO-PARTY", "XE-INTL-RTTY", "YOHFDX", "YUDXC",
};

constexpr std::string_view dxccValues[] = {
    "0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13", "14", "15", "16", "17", "18",
    "19", "20", "21", "22", "23", "24", "25", "26", "27", "28", "29", "30", "31", "32", "33", "34", "35",
    "36", "37", "38", "39", "40", "41", "42", "43", "44", "45", "46", "47", "48", "49", "50", "51", "52",
    "53", "54", "55", "56", "57", "58", "59", "60", "61", "62", "63", "64", "65", "66", "67", "68", "69",
    "70", "71", "72", "74", "75", "76", "77", "78", "79", "80", "81", "82", "84", "85", "86", "88", "89",
    "90", "91", "93", "94", "95", "96", "97", "98", "99", "100", "101", "102", "103", "104", "105", "106",
    "107", "108", "109", "110", "111", "112", "113", "114", "115", "116", "117", "118", "119", "120", "122",
    "123", "124", "125", "126", "127", "128", "129", "130", "131", "132", "133", "134", "135", "136", "137",
    "138", "139", "140", "141", "142", "143", "144", "145", "146", "147", "148", "149", "150", "151", "152",
    "153", "154", "155", "157", "158", "159", "160", "161", "162", "163", "164", "165", "166", "167", "168",
    "169", "170", "171", "172", "173", "174", "175", "176", "177", "178", "179", "180", "181", "182", "183",
    "184", "185", "186", "187", "188", "189", "190", "191", "192", "193", "194", "195", "196", "197", "198",
    "199", "200", "201", "202", "203", "204", "205", "206", "207", "208", "209", "210", "211", "212", "213",
    "214", "215", "216", "217", "218", "219", "220", "221", "222", "223", "224", "225", "226", "227", "228",
    "229", "230", "231", "232", "233", "234", "235", "236", "237", "238", "239", "240", "241", "242", "243",
    "244", "245", "246", "247", "248", "249", "250", "251", "252", "253", "254", "255", "256", "257", "258",
    "259", "260", "261", "262", "263", "264", "265", "266", "267", "268", "269", "270", "271", "272", "273",
    "274", "275", "276", "277", "278", "279", "280", "281", "282", "283", "284", "285", "286", "287", "288",
    "289", "291", "292", "293", "294", "295", "296", "297", "298", "299", "301", "302", "303", "304", "305",
    "306", "307", "308", "309", "312", "315", "318", "321", "324", "327", "330", "333", "336", "339", "342",
    "344", "345", "348", "354", "363", "369", "370", "372", "375", "376", "378", "379", "381", "382", "384",
    "386", "387", "390", "391", "400", "401", "402", "404", "406", "408", "409", "410", "411", "412", "414",
    "416", "420", "422", "424", "428", "430", "432", "434", "436", "438", "440", "442", "444", "446", "450",
    "452", "453", "454", "456", "458", "460", "462", "464", "466", "468", "470", "474", "478", "480", "482",
    "483", "488", "489", "490", "492", "493", "497", "499", "501", "502", "503", "504", "505", "506", "507",
    "508", "509", "510", "511", "512", "513", "514", "515", "516", "517", "518", "519", "520", "521", "522",
};

constexpr std::string_view modeValues[] = {
    "AM", "ARDOP", "ATV", "CHIP", "CLO", "CONTESTI", "CW", "DIGITALVOICE", "DOMINO", "DYNAMIC", "FAX", "FM",
    "FSK441", "FSK", "FT8", "HELL", "ISCAT", "JT4", "JT6M", "JT9", "JT44", "JT65", "MFSK", "MSK144", "MTONE",
    "MT63", "OFDM", "OLIVIA", "OPERA", "PAC", "PAX", "PKT", "PSK", "PSK2K", "Q15", "QRA64", "ROS", "RTTY",
    "RTTYM", "SSB", "SSTV", "T10", "THOR", "THRB", "TOR", "V4", "VOI", "WINMOR", "WSPR", "AMTORFEC", "ASCI",
    "C4FM", "CHIP64", "CHIP128", "DOMINOF", "DSTAR", "FMHELL", "FSK31", "GTOR", "HELL80", "HFSK", "JT4A",
    "JT4B", "JT4C", "JT4D", "JT4E", "JT4F", "JT4G", "JT65A", "JT65B", "JT65C", "MFSK8", "MFSK16", "PAC2",
    "PAC3", "PAX2", "PCW", "PSK10", "PSK31", "PSK63", "PSK63F", "PSK125", "PSKAM10", "PSKAM31", "PSKAM50",
    "PSKFEC31", "PSKHELL", "QPSK31", "QPSK63", "QPSK125", "THRBX",
};

constexpr std::string_view propModeValues[] = {
    "AS", "AUE", "AUR", "BS", "ECH", "EME", "ES", "F2", "FAI", "GWAVE", "INTERNET", "ION", "IRL", "LOS", "MS",
    "RPT", "RS", "SAT", "TEP", "TR",
};

constexpr std::string_view qslMediumValues[] = {"CARD", "EQSL", "LOTW"};

constexpr std::string_view qslRcvdValues[] = {"Y", "N", "R", "I", "V"};

constexpr std::string_view qslSentValues[] = {"Y", "N", "R", "Q", "I"};

constexpr std::string_view qslViaValues[] = {"B", "D", "E", "M"};

constexpr std::string_view qsoCompleteValues[] = {"Y", "N", "NIL", "?"};

constexpr std::string_view qsoUploadStatusValues[] = {"Y", "N", "M"};

constexpr std::string_view submodeValues[] = {
    "8PSK125", "8PSK125F", "8PSK125FL", "8PSK250", "8PSK250F", "8PSK250FL", "8PSK500", "8PSK500F", "8PSK1000",
    "8PSK1000F", "8PSK1200F", "AMTORFEC", "ASCI", "C4FM", "CHIP64", "CHIP128", "DMR", "DOM-M", "DOM4", "DOM5",
    "DOM8", "DOM11", "DOM16", "DOM22", "DOM44", "DOM88", "DOMINOEX", "DOMINOF", "DSTAR", "FMHELL", "FREEDATA",
    "FREEDV", "FSK31", "FSKH105", "FSKH245", "FSKHELL", "FSQCALL", "FST4", "FST4W", "FT2", "FT4", "GTOR",
    "HELL80", "HELLX5", "HELLX9", "HFSK", "ISCAT-A", "ISCAT-B", "JS8", "JT4A", "JT4B", "JT4C", "JT4D", "JT4E",
    "JT4F", "JT4G", "JT9-1", "JT9-2", "JT9-5", "JT9-10", "JT9-30", "JT9A", "JT9B", "JT9C", "JT9D", "JT9E",
    "JT9E FAST", "JT9F", "JT9F FAST", "JT9G", "JT9G FAST", "JT9H", "JT9H FAST", "JT65A", "JT65B", "JT65B2",
    "JT65C", "JT65C2", "JTMS", "LSB", "M17", "MFSK4", "MFSK8", "MFSK11", "MFSK16", "MFSK22", "MFSK31",
    "MFSK32", "MFSK64", "MFSK64L", "MFSK128", "MFSK128L", "NAVTEX", "OLIVIA 4/125", "OLIVIA 4/250",
    "OLIVIA 8/250", "OLIVIA 8/500", "OLIVIA 16/500", "OLIVIA 16/1000", "OLIVIA 32/1000", "OPERA-BEACON",
    "OPERA-QSO", "PAC2", "PAC3", "PAC4", "PAX2", "PCW", "PSK10", "PSK31", "PSK63", "PSK63F", "PSK63RC10",
    "PSK63RC20", "PSK63RC32", "PSK63RC4", "PSK63RC5", "PSK125", "PSK125RC10", "PSK125RC12", "PSK125RC16",
    "PSK125RC4", "PSK125RC5", "PSK250", "PSK250RC2", "PSK250RC3", "PSK250RC5", "PSK250RC6", "PSK250RC7",
    "PSK500", "PSK500RC2", "PSK500RC3", "PSK500RC4", "PSK800RC2", "PSK1000", "PSK1000RC2", "PSKAM10",
    "PSKAM31", "PSKAM50", "PSKFEC31", "PSKHELL", "QPSK31", "Q65", "QPSK63", "QPSK125", "QPSK250", "QPSK500",
    "QRA64A", "QRA64B", "QRA64C", "QRA64D", "QRA64E", "RIBBIT_PIX", "RIBBIT_SMS", "ROS-EME", "ROS-HF",
    "ROS-MF", "SCAMP_FAST", "SCAMP_OO", "SCAMP_OO_SLW", "SCAMP_SLOW", "SCAMP_VSLOW", "SIM31", "SITORB",
    "SLOWHELL", "THOR-M", "THOR4", "THOR5", "THOR8", "THOR11", "THOR16", "THOR22", "THOR25X4", "THOR50X1",
    "THOR50X2", "THOR100", "THRBX", "THRBX1", "THRBX2", "THRBX4", "THROB1", "THROB2", "THROB4", "USB",
    "VARA HF", "VARA SATELLITE", "VARA FM 1200", "VARA FM 9600",
};

// clang-format on

constexpr EnumerationValues enumerations[] = {
    {"ANT_PATH", antPathValues},
    {"ARRL_SECTION", arrlSectionValues},
    {"CONT", contValues},
    {"CONTEST_ID", contestIDValues},
    {"DXCC", dxccValues},
    {"MODE", modeValues},
    {"PROP_MODE", propModeValues},
    {"QSL_MEDIUM", qslMediumValues},
    {"QSL_RCVD", qslRcvdValues},
    {"QSL_SENT", qslSentValues},
    {"QSL_VIA", qslViaValues},
    {"QSO_COMPLETE", qsoCompleteValues},
    {"QSO_UPLOAD_STATUS", qsoUploadStatusValues},
    {"SUBMODE", submodeValues},
};

}  // namespace

std::span<const EnumerationValues> enumerationValues317() {
    return enumerations;
}

}  // namespace tallyrig
