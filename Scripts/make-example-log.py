#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes an invented log in ADI format to standard output.

    Scripts/make-example-log.py [QSOS [SEED]]

The same numbers give the same log, byte for byte, with every version of Python 3. A QSO has 19 fields and about
330 bytes; some names and places are not ASCII.
"""

import datetime
import random
import sys

# Prefixes, country, DXCC number, CQ zone, locator squares, share in the log.
COUNTRIES = [
    (["DA1", "DB2", "DD5", "DF3", "DG7", "DH4", "DJ6", "DK8", "DL1", "DL9", "DO2"],
     "Germany", 230, 14, ["JN48", "JN58", "JO31", "JO40", "JO53", "JO62"], 44),
    (["OE1", "OE3", "OE5", "OE7"], "Austria", 206, 15, ["JN47", "JN67", "JN88"], 9),
    (["HB9"], "Switzerland", 287, 14, ["JN36", "JN37", "JN47"], 8),
    (["PA3", "PD5"], "Netherlands", 263, 14, ["JO21", "JO22"], 5),
    (["F4", "F6"], "France", 227, 14, ["JN18", "JN23", "IN88"], 5),
    (["IK2", "IZ4"], "Italy", 248, 15, ["JN45", "JN54", "JN61"], 5),
    (["SP6", "SQ9"], "Poland", 269, 15, ["JO81", "JO90", "KO02"], 5),
    (["OK1", "OK2"], "Czech Republic", 503, 15, ["JN79", "JN99", "JO70"], 4),
    (["SM5", "SA6"], "Sweden", 284, 14, ["JO67", "JO89", "JP70"], 4),
    (["HA5", "HA8"], "Hungary", 239, 15, ["JN97", "KN06"], 3),
    (["EA3", "EA5"], "Spain", 281, 14, ["JN11", "IM98"], 3),
    (["K2", "N4", "W9"], "United States", 291, 5, ["FN20", "EM73", "EN61"], 3),
    (["JA1", "JH7"], "Japan", 339, 25, ["PM95", "QM08"], 2),
]

NAMES = ["Jörg", "Günter", "Käthe", "Andreas", "Stefan", "Ulrike", "Jürgen", "Michael", "Heinz", "Renée", "Bärbel",
         "Thomas", "Łukasz", "Petra", "Jan", "Zoltán", "Pavel", "Anna", "Björn", "Wolfgang", "Hans-Jürgen", "Sabine"]

PLACES = ["Musterstadt", "Neudorf", "Altenberg", "Oberhöhe", "Grünau", "Waldkirch am See", "Steinbrück", "Mühlheim",
          "Lindenthal", "Schönfeld", "Burg", "Weißenau", "Königsfurt", "Hafenstadt", "Bergün", "Sankt Anton"]

COMMENTS = ["Danke fürs QSO", "73 und bis bald", "Vertikal auf dem Dach", "Portabel im Wald", "QRP 5 W", "Starkes QSB",
            "Erstes QSO auf diesem Band", "Endgespeiste Antenne", "Neue Station, viel Spaß", "Netter Schwatz über Röhren"]

# Band, frequencies of each mode in kHz from and to, share in the log.
BANDS = [
    ("80m", {"CW": (3510, 3560), "SSB": (3620, 3790), "FT8": (3573, 3576)}, 18),
    ("40m", {"CW": (7005, 7035), "SSB": (7060, 7195), "FT8": (7074, 7077), "RTTY": (7040, 7048)}, 24),
    ("30m", {"CW": (10105, 10125), "FT8": (10136, 10139)}, 6),
    ("20m", {"CW": (14010, 14060), "SSB": (14130, 14340), "FT8": (14074, 14077), "RTTY": (14080, 14095)}, 24),
    ("15m", {"CW": (21010, 21060), "SSB": (21160, 21440), "FT8": (21074, 21077)}, 10),
    ("10m", {"CW": (28010, 28060), "SSB": (28320, 28900), "FT8": (28074, 28077)}, 8),
    ("2m", {"SSB": (144180, 144390), "FM": (145225, 145575), "FT8": (144174, 144177)}, 7),
    ("70cm", {"SSB": (432160, 432380), "FM": (433400, 433575)}, 3),
]

LETTERS = "ABCDEFGHIJKLMNOPQRSTUVWXYZ"


class Draw:
    """Chance that stays the same: of Python's generator only random() is promised to."""

    def __init__(self, seed):
        self.generator = random.Random(seed)

    def below(self, limit):
        return int(self.generator.random() * limit)

    def one_of(self, choices):
        return choices[self.below(len(choices))]

    def by_share(self, choices):
        """One of tuples whose last member is their share."""
        left = self.below(sum(choice[-1] for choice in choices))
        for choice in choices:
            left -= choice[-1]
            if left < 0:
                return choice
        return choices[-1]


class Station:
    """Someone worked, perhaps several times: what is theirs stays the same."""

    def __init__(self, draw):
        prefixes, self.country, self.dxcc, self.cq_zone, squares, _ = draw.by_share(COUNTRIES)
        self.call = draw.one_of(prefixes) + "".join(draw.one_of(LETTERS) for _ in range(2 + draw.below(2)))
        self.locator = draw.one_of(squares) + "".join(draw.one_of(LETTERS[:24]).lower() for _ in range(2))
        self.name = draw.one_of(NAMES)
        self.place = draw.one_of(PLACES)


def tag(name, value):
    return "<%s:%d>%s " % (name, len(value.encode("utf-8")), value)


def report(draw, mode):
    if mode == "FT8":
        return "%+03d" % (draw.below(36) - 22)
    return "5%d" % (5 + draw.below(5)) if mode in ("SSB", "FM") else "5%d9" % (6 + draw.below(4))


def qso(draw, station, moment):
    band, modes, _ = draw.by_share(BANDS)
    mode = draw.one_of(list(modes))
    lowest, highest = modes[mode]
    end = moment + datetime.timedelta(seconds=45 + draw.below(600))
    fields = [
        ("CALL", station.call),
        ("QSO_DATE", moment.strftime("%Y%m%d")),
        ("TIME_ON", moment.strftime("%H%M%S")),
        ("TIME_OFF", end.strftime("%H%M%S")),
        ("BAND", band),
        ("FREQ", "%.6f" % (lowest / 1000 + draw.below(1000) * (highest - lowest) / 1000000)),
        ("MODE", mode),
        ("RST_SENT", report(draw, mode)),
        ("RST_RCVD", report(draw, mode)),
        ("NAME", station.name),
        ("QTH", station.place),
        ("GRIDSQUARE", station.locator),
        ("COUNTRY", station.country),
        ("DXCC", str(station.dxcc)),
        ("CQZ", str(station.cq_zone)),
        ("TX_PWR", draw.one_of(["5", "50", "100", "100", "100", "400"])),
        ("STATION_CALLSIGN", "DK0QLN"),
        ("MY_GRIDSQUARE", "JO40ha"),
        ("COMMENT", draw.one_of(COMMENTS)),
    ]
    return "".join(tag(name, value) for name, value in fields) + "<EOR>\n"


def write_log(out, count, seed):
    draw = Draw(seed)
    out.write("Erfundenes Log mit %d QSOs der Station DK0QLN\n" % count)
    out.write(tag("ADIF_VER", "3.1.7") + tag("PROGRAMID", "make-example-log") + "<EOH>\n\n")
    stations = [Station(draw) for _ in range(20 + count * 3 // 5)]
    moment = datetime.datetime(2023, 1, 1, 6, 30)
    # A large log is longer, up to some twenty years, and then denser.
    density = max(1, count // 40000)
    for _ in range(count):
        # Sessions of an evening with pauses of days.
        pause = 60 + draw.below(600) if draw.below(12) else 8 * 3600 + draw.below(3 * 86400)
        moment += datetime.timedelta(seconds=pause // density)
        out.write(qso(draw, draw.one_of(stations), moment))


def main():
    count = int(sys.argv[1]) if len(sys.argv) > 1 else 2000
    seed = int(sys.argv[2]) if len(sys.argv) > 2 else 7
    with open(sys.stdout.fileno(), "w", encoding="utf-8", newline="\n", closefd=False) as out:
        write_log(out, count, seed)


if __name__ == "__main__":
    main()
