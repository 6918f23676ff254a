#!/usr/bin/env python3
"""Writes countries.csv, time_zones.csv and zone_cities.csv from Debian's tzdata.

Sources (package tzdata, folder /usr/share/zoneinfo by default):
  iso3166.tab   ISO 3166 alpha-2 code and the country name
  zone1970.tab  the zones, the countries each zone covers (principal country
                first) and the coordinates of the zone's principal location
  tzdata.zi     the zone rules; the STDOFF field of a zone's last line is its
                standard offset today

Usage: python3 data/gen_places.py [--zoneinfo DIR] [--out DIR]

The output is sorted and contains no dates, so running the script twice on the
same tzdata gives the same bytes.
"""

import argparse
import csv
import os
import sys
from decimal import Decimal, ROUND_HALF_UP


def read_tab(path):
    with open(path, encoding="utf-8") as f:
        for line in f:
            line = line.rstrip("\n")
            if not line or line.startswith("#"):
                continue
            yield line.split("\t")


def read_countries(zoneinfo):
    countries = {}
    for fields in read_tab(os.path.join(zoneinfo, "iso3166.tab")):
        countries[fields[0]] = fields[1]
    return countries


def parse_hms(text):
    """'5:30' -> minutes east of Greenwich; '-3:30' -> -210. Seconds must be 0."""
    sign = -1 if text.startswith("-") else 1
    parts = [int(p) for p in text.lstrip("-").split(":")]
    while len(parts) < 3:
        parts.append(0)
    hours, minutes, seconds = parts
    if seconds:
        raise ValueError(f"standard offset with seconds: {text}")
    return sign * (hours * 60 + minutes)


def read_standard_offsets(zoneinfo):
    """Zone name -> standard offset in minutes, from the last line of each zone."""
    offsets = {}
    current = None
    last_stdoff = None
    with open(os.path.join(zoneinfo, "tzdata.zi"), encoding="utf-8") as f:
        for line in f:
            fields = line.split()
            if not fields or fields[0].startswith("#"):
                continue
            if fields[0] == "Z":
                if current:
                    offsets[current] = last_stdoff
                current = fields[1]
                last_stdoff = fields[2]
            elif fields[0] in ("R", "L"):
                if current:
                    offsets[current] = last_stdoff
                current = None
            elif current:
                last_stdoff = fields[0]
    if current:
        offsets[current] = last_stdoff
    return {name: parse_hms(value) for name, value in offsets.items()}


def master_form(minutes):
    """Minutes east of Greenwich -> (decimal hours, 'E' or 'W') as the time-zone
    master stores them: hours plus minutes over 60, rounded to two decimals."""
    direction = "W" if minutes < 0 else "E"
    whole = abs(minutes)
    value = (Decimal(whole // 60) + Decimal(whole % 60) / Decimal(60)).quantize(
        Decimal("0.01"), rounding=ROUND_HALF_UP)
    text = str(value).rstrip("0").rstrip(".")
    return text, direction


def split_coordinate(text, degree_digits):
    """'+2232' or '+223215' (ISO 6709) -> (degrees, minutes, negative), the
    seconds rounded to the nearest minute, 30 seconds going up."""
    negative = text[0] == "-"
    digits = text[1:]
    degrees = int(digits[:degree_digits])
    minutes = int(digits[degree_digits:degree_digits + 2])
    seconds = int(digits[degree_digits + 2:] or 0)
    if seconds >= 30:
        minutes += 1
        if minutes == 60:
            degrees, minutes = degrees + 1, 0
    return degrees, minutes, negative


def split_coordinates(text):
    cut = max(text.rfind("+"), text.rfind("-"))
    lat, lon = text[:cut], text[cut:]
    return split_coordinate(lat, 2), split_coordinate(lon, 3)


def city_of(zone):
    return zone.rsplit("/", 1)[-1].replace("_", " ")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--zoneinfo", default="/usr/share/zoneinfo")
    parser.add_argument("--out", default=os.path.dirname(os.path.abspath(__file__)))
    args = parser.parse_args()

    countries = read_countries(args.zoneinfo)
    offsets = read_standard_offsets(args.zoneinfo)

    zones = []
    for fields in read_tab(os.path.join(args.zoneinfo, "zone1970.tab")):
        codes, coordinates, name = fields[0].split(","), fields[1], fields[2]
        for code in codes:
            if code not in countries:
                sys.exit(f"zone {name}: unknown country code {code}")
        if name not in offsets:
            sys.exit(f"zone {name}: not in tzdata.zi")
        zones.append((name, codes, coordinates))
    zones.sort(key=lambda z: z[0])

    with open(os.path.join(args.out, "countries.csv"), "w", encoding="utf-8", newline="") as f:
        w = csv.writer(f, lineterminator="\n")
        w.writerow(["iso", "name"])
        for code, name in sorted(countries.items(), key=lambda c: (c[1].lower(), c[0])):
            w.writerow([code, name])

    with open(os.path.join(args.out, "time_zones.csv"), "w", encoding="utf-8", newline="") as f:
        w = csv.writer(f, lineterminator="\n")
        w.writerow(["zone", "countries", "TimeDifference", "TimeZone"])
        for name, codes, _ in zones:
            value, direction = master_form(offsets[name])
            w.writerow([name, " ".join(codes), value, direction])

    cities = []
    seen = set()
    for name, codes, coordinates in zones:
        (lat_d, lat_m, south), (lon_d, lon_m, west) = split_coordinates(coordinates)
        city = city_of(name)
        key = (codes[0], city.lower())
        if key in seen:
            continue
        seen.add(key)
        cities.append([codes[0], city, lat_d, lat_m, "S" if south else "N",
                       lon_d, lon_m, "W" if west else "E", name])
    cities.sort(key=lambda c: (c[0], c[1].lower()))

    with open(os.path.join(args.out, "zone_cities.csv"), "w", encoding="utf-8", newline="") as f:
        w = csv.writer(f, lineterminator="\n")
        w.writerow(["iso", "city", "lat_deg", "lat_min", "lat_ns", "lon_deg", "lon_min", "lon_ew", "zone"])
        w.writerows(cities)


if __name__ == "__main__":
    main()
