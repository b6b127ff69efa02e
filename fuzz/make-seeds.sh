#!/usr/bin/env bash
# usage: fuzz/make-seeds.sh <folder of the built tools> <folder for the seeds>
# Makes a first corpus for every fuzz target: what the stand-in tools write for each model, the screens and
# report files, and a few lines as users write them. Each target's first lines describe the start of its
# inputs.
set -euo pipefail
tools=$(cd "$1" && pwd)
seeds=$2
source_root=$(cd "$(dirname "$0")/.." && pwd)
data=$source_root/data
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export ASAN_OPTIONS=detect_leaks=0

rm -rf "$seeds"
mkdir -p "$seeds"/{records,procedures,poll,status,profile,screens,layouts,formulas,overlay,plufile,xlsx,former}

byte() { printf "\\x$(printf %02x "$1")"; }

# The text files of a register of each kind, and its reports after a day.
words=(Velmaro Velmaro Velmarn Dorvik)
for kind in 0 1 2 3; do
  word=${words[$kind]}
  "$tools/makebank" "$work/bank$kind" --model "$kind" --plus 40 >/dev/null
  "$tools/ringsales" "$work/bank$kind" --tickets 10 --seed 1 >/dev/null
  mkdir "$work/app$kind"
  cd "$work/app$kind"
  printf '[Bank]\r\nFolder=../bank%s\r\n' "$kind" > registers.ini
  cp "$work/bank$kind"/1/*.dat .
  for binary in *.dat; do
    file=${binary%.dat}
    "$tools/convert" "w$word" "f$binary" "t$file.txt" "u$(printf %02d "$file")" 2>/dev/null || continue
    { byte "$file"; byte "$kind"; byte 0; head -n 2 "$file.txt"; } > "$seeds/records/$file-$kind"
    { byte "$file"; byte "$kind"; head -n 3 "$file.txt"; } > "$seeds/procedures/$file-$kind"
  done
  for operation in u52 u352; do
    if "$tools/convert" "w$word" f52.dat t52.txt "$operation" 2>/dev/null; then
      { byte 52; byte "$kind"; cat 52.txt; } > "$seeds/procedures/$operation-$kind"
    fi
  done
  "$tools/VELMARCOMM" 9600 F1 1T P0001010100010000000000000000000000000000000000000000000100 -Z >/dev/null 2>&1 || true
  cp status.out "$seeds/status/$kind"
  "$tools/VELMARCOMM" 9600 F1 1T -P 190 191 192 194 218 >/dev/null 2>&1 || true
  place=0
  for report in 190 194 191 218 192; do
    if "$tools/convert" "w$word" "fpoll$report.dll" "tPOLL$report.txt" "S$report" 2>/dev/null; then
      stamp=$(od -An -tu1 -j4 -N1 poll194.dll)
      { byte "$place"; byte "$stamp"; head -n 20 "POLL$report.txt"; } > "$seeds/poll/$report-$kind"
    fi
    place=$((place + 1))
  done
done
cd "$source_root"

for file in "$data"/*.scn; do
  cp "$file" "$seeds/screens/"
done
for file in "$data"/*.rpt; do
  cp "$file" "$seeds/layouts/"
done
for file in "$data/setup.ini" "$data/plutble.scn"; do
  { printf 'SetupOption\nECRModel\n3\n'; cat "$file"; } > "$seeds/profile/$(basename "$file")"
done
for status in '0' '8' '-13' '"12",' $'99\r\n'; do
  printf '%s' "$status" > "$seeds/status/$(printf '%s' "$status" | cksum | cut -d' ' -f1)"
done

# Selections and expressions as the report files have them, and the periods.
number=0
formula() { number=$((number + 1)); printf '%s' "$1" > "$seeds/formulas/$number"; }
for period in monthtodate weektodate yeartodate lastfullmonth; do
  formula "s{PLUSALES.SALESDATE} in $period"
done
formula 's{PLUSALES.SALESDATE} in date(2026,1,1) to date(2026,1,31) and not ({PLUSALES.ID} = "17" or {PLUSALES.COUNT1} <= 0)'
formula 's3 < {PLUDATA.PRICE1} and {PLUDATA.DESCRIPTION} <> "Tea"'
while IFS= read -r line; do
  formula "s$line"
done < <(grep -h -i '^where=' "$data"/*.rpt | cut -d= -f2- | tr -d '\r')
while IFS= read -r line; do
  formula "e$line"
done < <(grep -h -i -E '^(number|value|shownif)=' "$data"/*.rpt | cut -d= -f2- | tr -d '\r' | sort -u)

for keyboard in 0 1 2 3; do
  { byte "$keyboard"; printf 'Tea\r\n16777215\r\n0\r\nArial\r\n8\r\nTrue\r\nFalse\r\n  Cup\r\n-2147483633\r\n255\r\nCourier New\r\n8.25\r\nFalse\r\nTrue\r\n'; } \
    > "$seeds/overlay/$keyboard"
done

printf 'Number,Description,Group,Status,Price 1\r\n17,"Tea, black",1,1,2.50\r\n018,Coffee,2,1,3\r\n' > "$seeds/plufile/commas"
printf '\xef\xbb\xbfPLU report;;\r\nNumber;Price 2;Description\r\n17;2,50;"said ""tea"""\r\n17;1;\r\n;;\r\n' > "$seeds/plufile/semicolons"

# The parts of a spreadsheet, one in each seed.
printf '\001<worksheet><sheetData><row r="1"><c r="A1" t="inlineStr"><is><t>Number</t></is></c><c r="B1" t="s"><v>0</v></c></row><row r="3"><c r="A3"><v>17</v></c><c r="B3" s="1"><f>A3</f><v>1.1000000000000001</v></c><c t="b"><v>1</v></c><c t="e"><v>#N/A</v></c></row></sheetData><mergeCells><mergeCell ref="A1:B2"/></mergeCells></worksheet>' > "$seeds/xlsx/sheet"
printf '\002<styleSheet><numFmts><numFmt numFmtId="164" formatCode="[h]:mm"/></numFmts><cellXfs><xf numFmtId="0"/><xf numFmtId="164"/></cellXfs></styleSheet>' > "$seeds/xlsx/styles"
printf '\003<sst><si><t>Tea</t></si><si><r><t>Co_x000D_</t></r><rPh><t>ko</t></rPh></si></sst>' > "$seeds/xlsx/texts"
printf '\004<workbook xmlns:r="r"><sheets><sheet name="a" r:id="rId2"/></sheets></workbook>' > "$seeds/xlsx/workbook"
printf '\005<Relationships><Relationship Id="rId2" Type="http://x/worksheet" Target="/xl/worksheets/sheet2.xml"/></Relationships>' > "$seeds/xlsx/relations"

# A record, the head of the file, a definition.
printf '\004\017\360\101' > "$seeds/former/record"
printf '\000\000\024\002' > "$seeds/former/version"
printf '\003\000\055\377\003\000\105\014' > "$seeds/former/definition"

# Words from which formulas, report files and screens are made.
dictionary() { tr -d '\r' | sort -u | sed 's/.*/"&"/' > "$seeds/$1.dict"; }
{
  printf '%s\n' ' and ' ' or ' 'not ' ' in ' ' to ' 'date(' 'sum(' 'total(' '<>' '<=' '>=' monthtodate YearToDate WeekToDateFromSun
  grep -hoE '\{[A-Z0-9]+\.[A-Z0-9]+\}' "$data"/*.rpt
} | dictionary formulas
grep -hoE '^([A-Za-z0-9]+=.*|\[[A-Za-z0-9]+\])' "$data"/*.rpt | grep -v '["\\]' | dictionary layouts
grep -hoE '^([A-Za-z0-9]+=|\[[A-Za-z]+)' "$data"/*.scn | dictionary screens
