#!/usr/bin/env python3
"""Validate data/cities_curated.csv against the system's tzdata tables.

Checks: the exact header; the field count and ranges of every row; that the
country code is in iso3166.tab and the zone is a compiled zone under the
zoneinfo folder; that a zone taken from zone1970.tab is one of the country's
zones there; that the file is sorted by (iso, city) with no duplicate; and
that a city which is also the principal city of one of its country's
zone1970.tab zones (Asia/Kolkata -> Kolkata, Panama City -> America/Panama)
lies within 15 arc-minutes of that zone's coordinates in both latitude and
longitude.

Usage: python3 data/check_cities.py [CSV] [--zoneinfo DIR]
Exit status 0 when the file passes, 1 with one line per fault otherwise.
"""

import csv
import re
import sys
from pathlib import Path

HEADER = ["iso", "city", "lat_deg", "lat_min", "lat_ns",
          "lon_deg", "lon_min", "lon_ew", "zone"]
TOLERANCE_ARCMIN = 15
# The store adds this sample row itself; a second copy would clash with it.
RESERVED_CITIES = {("IN", "Hyderabad (A.P)")}


def read_tab(path):
    """Rows of a tzdata .tab file, comments and blank lines left out."""
    with open(path, encoding="utf-8") as handle:
        return [line.rstrip("\n").split("\t") for line in handle
                if line.strip() and not line.startswith("#")]


def parse_iso6709(text):
    """'+2232+08822' or '+404251-0740023' -> (lat, lon) in arc-minutes."""
    match = re.fullmatch(r"([+-])(\d{4}|\d{6})([+-])(\d{5}|\d{7})", text)
    if not match:
        raise ValueError(f"bad coordinates {text!r}")

    def minutes(sign, digits, degree_width):
        deg = int(digits[:degree_width])
        mins = int(digits[degree_width:degree_width + 2])
        secs = int(digits[degree_width + 2:] or 0)
        value = deg * 60 + mins + secs / 60
        return -value if sign == "-" else value

    return (minutes(match.group(1), match.group(2), 2),
            minutes(match.group(3), match.group(4), 3))


def load_zone1970(zoneinfo):
    """zone name -> (set of country codes, (lat, lon) in arc-minutes)."""
    zones = {}
    for fields in read_tab(zoneinfo / "zone1970.tab"):
        codes, coords, name = fields[0], fields[1], fields[2]
        zones[name] = (set(codes.split(",")), parse_iso6709(coords))
    return zones


def is_compiled_zone(zoneinfo, name):
    if not re.fullmatch(r"[A-Za-z0-9_+\-]+(/[A-Za-z0-9_+\-]+)*", name):
        return False
    path = zoneinfo / name
    if not path.is_file():
        return False
    with open(path, "rb") as handle:
        return handle.read(4) == b"TZif"


def principal_city(zone_name):
    """The city part of a zone name as people write it: America/Argentina/
    Buenos_Aires -> 'Buenos Aires'."""
    return zone_name.rsplit("/", 1)[-1].replace("_", " ")


def int_in(text, low, high):
    if not re.fullmatch(r"\d+", text):
        return None
    value = int(text)
    return value if low <= value <= high else None


def check_row(row, countries, zones, zoneinfo):
    faults = []
    iso, city, lat_d, lat_m, ns, lon_d, lon_m, ew, zone = row
    if iso not in countries:
        faults.append(f"country code {iso!r} is not in iso3166.tab")
    if not city or city != city.strip() or '"' in city:
        faults.append(f"city name {city!r} is empty, padded or quoted")
    if (iso, city) in RESERVED_CITIES:
        faults.append("row is reserved for the store's sample chart")
    lat_deg, lat_min = int_in(lat_d, 0, 90), int_in(lat_m, 0, 59)
    lon_deg, lon_min = int_in(lon_d, 0, 180), int_in(lon_m, 0, 59)
    if lat_deg is None or lat_min is None or (lat_deg == 90 and lat_min):
        faults.append(f"latitude {lat_d} {lat_m} out of range")
    if lon_deg is None or lon_min is None or (lon_deg == 180 and lon_min):
        faults.append(f"longitude {lon_d} {lon_m} out of range")
    if ns not in ("N", "S"):
        faults.append(f"latitude direction {ns!r} is not N or S")
    if ew not in ("E", "W"):
        faults.append(f"longitude direction {ew!r} is not E or W")
    if not is_compiled_zone(zoneinfo, zone):
        faults.append(f"zone {zone!r} is not under {zoneinfo}")
    elif zone in zones and iso not in zones[zone][0]:
        faults.append(f"zone1970.tab does not list {iso} for {zone}")
    if faults:
        return faults

    lat = (lat_deg * 60 + lat_min) * (1 if ns == "N" else -1)
    lon = (lon_deg * 60 + lon_min) * (1 if ew == "E" else -1)
    for name, (codes, (zlat, zlon)) in zones.items():
        here = principal_city(name)
        if iso in codes and city in (here, here + " City"):
            dlat, dlon = abs(lat - zlat), abs(lon - zlon)
            if dlat > TOLERANCE_ARCMIN or dlon > TOLERANCE_ARCMIN:
                faults.append(
                    f"{dlat:.0f}' in latitude and {dlon:.0f}' in longitude "
                    f"from {name} in zone1970.tab")
    return faults


def main(argv):
    args = list(argv)
    zoneinfo = Path("/usr/share/zoneinfo")
    if "--zoneinfo" in args:
        at = args.index("--zoneinfo")
        zoneinfo = Path(args[at + 1])
        del args[at:at + 2]
    csv_path = Path(args[0]) if args else (
        Path(__file__).resolve().parent / "cities_curated.csv")

    countries = {fields[0] for fields in read_tab(zoneinfo / "iso3166.tab")}
    zones = load_zone1970(zoneinfo)

    faults = []
    with open(csv_path, encoding="utf-8", newline="") as handle:
        rows = list(csv.reader(handle))
    if not rows or rows[0] != HEADER:
        faults.append(f"line 1: header must be {','.join(HEADER)}")
    seen, previous = set(), None
    for line_no, row in enumerate(rows[1:], start=2):
        if len(row) != len(HEADER):
            faults.append(f"line {line_no}: {len(row)} fields, "
                          f"expected {len(HEADER)}")
            continue
        key = (row[0], row[1])
        if key in seen:
            faults.append(f"line {line_no}: duplicate {row[0]},{row[1]}")
        seen.add(key)
        if previous is not None and key < previous:
            faults.append(f"line {line_no}: {row[0]},{row[1]} is out of "
                          "order (sort by iso, then city)")
        previous = key
        for fault in check_row(row, countries, zones, zoneinfo):
            faults.append(f"line {line_no} ({row[0]},{row[1]}): {fault}")

    for fault in faults:
        print(fault)
    matched = sum(1 for row in rows[1:] if len(row) == len(HEADER))
    print(f"{csv_path.name}: {matched} cities, {len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
