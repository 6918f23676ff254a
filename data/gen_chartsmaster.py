#!/usr/bin/env python3
"""Generate data/chartsmaster.csv, the divisional-chart lookup table.

Each row says: in chart `chartname`, a body in sign `RasiHouse` whose degree
within the sign d satisfies startDegree <= d < EndDegree falls in sign
`HouseNumber`.  Signs are numbered 1 (Aries) to 12 (Pisces).

Only the charts that the program reads from the table are generated; the
others (navamsa, panchamsha, shashtamsha, sapthamsha, ashatamsha,
shodashamsha, vimshamsha, saptavimshamsha, nava-navamsa) are computed by
plain division of the longitude and have no rows here.

Usage:
    python3 data/gen_chartsmaster.py            # rewrite data/chartsmaster.csv
    python3 data/gen_chartsmaster.py --check    # fail if the file is stale
    python3 data/gen_chartsmaster.py --stdout   # print instead of writing
"""

import csv
import io
import sys
from decimal import Decimal, localcontext
from fractions import Fraction
from pathlib import Path

HEADER = ["chartname", "RasiHouse", "startDegree", "EndDegree", "HouseNumber"]
SIGN_SPAN = 30

ARIES, TAURUS, GEMINI, CANCER, LEO, VIRGO = 1, 2, 3, 4, 5, 6
LIBRA, SCORPIO, SAGITTARIUS, CAPRICORN, AQUARIUS, PISCES = 7, 8, 9, 10, 11, 12

MOVABLE = (ARIES, CANCER, LIBRA, CAPRICORN)
FIXED = (TAURUS, LEO, SCORPIO, AQUARIUS)
DUAL = (GEMINI, VIRGO, SAGITTARIUS, PISCES)


def is_odd(sign):
    """Odd (masculine) signs are Aries, Gemini, Leo, ..."""
    return sign % 2 == 1


def nth_from(sign, n):
    """The n-th sign counted from `sign`, the sign itself being the 1st."""
    return (sign - 1 + n - 1) % 12 + 1


def by_modality(sign, movable, fixed, dual):
    if sign in MOVABLE:
        return movable
    if sign in FIXED:
        return fixed
    return dual


def equal_parts(parts, first, step=1):
    """`parts` equal bands of the sign; band k (0-based) goes to the sign
    k*step places after `first`.  Returns (start, end, sign) with exact
    fractions for the edges."""
    width = Fraction(SIGN_SPAN, parts)
    return [(k * width, (k + 1) * width, nth_from(first, k * step + 1))
            for k in range(parts)]


# --- one function per classical rule --------------------------------------

def parashara_hora(sign):
    """D2: odd signs give the Sun's hora (Leo) first and the Moon's (Cancer)
    second; even signs the other way round."""
    first, second = (LEO, CANCER) if is_odd(sign) else (CANCER, LEO)
    return [(Fraction(0), Fraction(15), first),
            (Fraction(15), Fraction(30), second)]


def parashara_drekkana(sign):
    """D3: the sign itself, then its 5th, then its 9th."""
    return equal_parts(3, sign, step=4)


def kendra_chaturthamsha(sign):
    """D4: the sign itself, then its 4th, 7th and 10th (the kendras)."""
    return equal_parts(4, sign, step=3)


def parashara_dashamsha(sign):
    """D10: counted from the sign itself in odd signs and from its 9th in
    even signs."""
    return equal_parts(10, sign if is_odd(sign) else nth_from(sign, 9))


def parivritti_ekadashamsha(sign):
    """D11: the eleven parts run on continuously round the zodiac from
    Aries (the parivritti count), so each sign starts where the previous
    one stopped: Aries from Aries, Taurus from Pisces, Gemini from Aquarius."""
    return equal_parts(11, nth_from(ARIES, (sign - 1) * 11 + 1))


def parashara_dwadashamsha(sign):
    """D12: counted from the sign itself."""
    return equal_parts(12, sign)


def parashara_chaturvimshamsha(sign):
    """D24: counted from Leo in odd signs and from Cancer in even signs."""
    return equal_parts(24, LEO if is_odd(sign) else CANCER)


def parashara_trimshamsha(sign):
    """D30: unequal parts ruled by Mars, Saturn, Jupiter, Mercury and Venus
    (5, 5, 8, 7, 5 degrees) in odd signs, each taking its odd sign; in even
    signs the order and widths are reversed and each lord takes its even
    sign."""
    if is_odd(sign):
        parts = [(5, ARIES), (5, AQUARIUS), (8, SAGITTARIUS), (7, GEMINI),
                 (5, LIBRA)]
    else:
        parts = [(5, TAURUS), (7, VIRGO), (8, PISCES), (5, CAPRICORN),
                 (5, SCORPIO)]
    bands, start = [], Fraction(0)
    for width, result in parts:
        bands.append((start, start + width, result))
        start += width
    return bands


def parashara_khavedamsa(sign):
    """D40: counted from Aries in odd signs and from Libra in even signs."""
    return equal_parts(40, ARIES if is_odd(sign) else LIBRA)


def parashara_akshvedamsa(sign):
    """D45: counted from Aries, Leo or Sagittarius as the sign is movable,
    fixed or dual."""
    return equal_parts(45, by_modality(sign, ARIES, LEO, SAGITTARIUS))


def parashara_shastiamsa(sign):
    """D60: counted from the sign itself."""
    return equal_parts(60, sign)


# Chart names as the program asks for them (its own spellings), in the order
# of its divisional-chart grid.
CHARTS = [
    ("hora", parashara_hora),
    ("drekkana", parashara_drekkana),
    ("chaturthamsha", kendra_chaturthamsha),
    ("dashamsha", parashara_dashamsha),
    ("ekadashamsha", parivritti_ekadashamsha),
    ("dwadashamsha", parashara_dwadashamsha),
    ("chaturvimshamsha", parashara_chaturvimshamsha),
    ("trimshamsha", parashara_trimshamsha),
    ("khavedamsa", parashara_khavedamsa),
    ("akshvedamsa", parashara_akshvedamsa),
    ("shastiamsa", parashara_shastiamsa),
]


def edge_text(value):
    """An edge as decimal text: exact when it terminates, otherwise rounded
    to 15 significant digits (30/11 -> 2.72727272727273).  Every edge is
    formatted from the same exact fraction, so the end of one band and the
    start of the next are the same literal."""
    if value.denominator == 1:
        return str(value.numerator)
    with localcontext() as ctx:
        ctx.prec = 15
        text = format(Decimal(value.numerator) / Decimal(value.denominator),
                      "f")
    if "." in text:
        text = text.rstrip("0").rstrip(".")
    return text


def check_bands(name, sign, bands):
    if bands[0][0] != 0 or bands[-1][1] != SIGN_SPAN:
        raise ValueError(f"{name} sign {sign}: bands do not span 0 to 30")
    for (_, end, _), (start, _, _) in zip(bands, bands[1:]):
        if end != start:
            raise ValueError(f"{name} sign {sign}: gap or overlap at {end}")
    for start, end, result in bands:
        if not start < end or not 1 <= result <= 12:
            raise ValueError(f"{name} sign {sign}: bad band {start}-{end}")


def rows():
    for name, rule in CHARTS:
        for sign in range(1, 13):
            bands = rule(sign)
            check_bands(name, sign, bands)
            for start, end, result in bands:
                yield [name, sign, edge_text(start), edge_text(end), result]


def render():
    out = io.StringIO()
    writer = csv.writer(out, lineterminator="\n")
    writer.writerow(HEADER)
    writer.writerows(rows())
    return out.getvalue()


def main(argv):
    target = Path(__file__).resolve().parent / "chartsmaster.csv"
    text = render()
    if "--stdout" in argv:
        sys.stdout.write(text)
    elif "--check" in argv:
        if not target.exists() or target.read_text() != text:
            print(f"{target} is stale: run {Path(__file__).name}",
                  file=sys.stderr)
            return 1
        print(f"{target.name}: up to date, {text.count(chr(10)) - 1} rows")
    else:
        target.write_text(text)
        print(f"wrote {target.name}: {text.count(chr(10)) - 1} rows")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
