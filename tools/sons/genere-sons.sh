#!/usr/bin/env bash
# Synthesises the five short sounds of the game into data/sons/.
#
#   carte_ok.wav  right answer              two plucked notes going up
#   carte_er.wav  wrong answer              a soft low falling double tone
#   carte_ga.wav  step over, next announced a rising major arpeggio
#   carte_pe.wav  question or game lost     a falling minor arpeggio
#   carte_hl.wav  information card opened   a light bell stroke
#
# All of them: 22050 Hz, mono, 16-bit PCM, under half a second, peaks
# normalised to -3 dBFS so that nothing clips. sox is run in repeatable
# mode and without dither, so that two runs give the same bytes.
#
# Usage: tools/sons/genere-sons.sh [output folder]   (default: data/sons)
set -euo pipefail

ici=$(cd "$(dirname "$0")" && pwd)
racine=$(cd "$ici/../.." && pwd)
sortie=${1:-"$racine/data/sons"}

if ! command -v sox >/dev/null 2>&1; then
  echo "sox is missing: installing it" >&2
  sudo_=""
  if [ "$(id -u)" -ne 0 ]; then sudo_="sudo"; fi
  export DEBIAN_FRONTEND=noninteractive
  $sudo_ apt-get update -qq
  $sudo_ apt-get install -y -qq --no-install-recommends sox
fi

mkdir -p "$sortie"
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT

FORMAT=(-r 22050 -c 1 -b 16 -e signed-integer)
SOX=(sox -R -D -V1)

# note FILE DURATION TYPE FREQUENCY [extra effects...]
# One note with a short attack and a fade to silence, so that notes joined
# end to end never click.
note() {
  local f=$1 d=$2 type=$3 freq=$4
  shift 4
  "${SOX[@]}" -n "${FORMAT[@]}" "$f" synth "$d" "$type" "$freq" \
    fade q 0.004 "$d" "$(awk "BEGIN{print $d*0.6}")" "$@"
}

# bell FILE DURATION FREQUENCY [extra effects...]
# A struck tone: almost no attack and a logarithmic decay over the whole note.
bell() {
  local f=$1 d=$2 freq=$3
  shift 3
  "${SOX[@]}" -n "${FORMAT[@]}" "$f" synth "$d" sine "$freq" \
    fade l 0.002 "$d" "$(awk "BEGIN{print $d*0.97}")" "$@"
}

# silence FILE DURATION
silence() {
  "${SOX[@]}" -n "${FORMAT[@]}" "$1" trim 0 "$2"
}

# finish OUTPUT INPUTS...: joins the notes, normalises, writes the WAV.
finish() {
  local out=$1
  shift
  "${SOX[@]}" "$@" "${FORMAT[@]}" "$sortie/$out" gain -n -3
}

# Right answer: E5 then B5, plucked, bright and short. The plucked string is
# rich in high harmonics; the low-pass keeps it round.
note "$tmp/ok1.wav" 0.09 pluck 659.26 lowpass 3000
note "$tmp/ok2.wav" 0.17 pluck 987.77 lowpass 3000
finish carte_ok.wav "$tmp/ok1.wav" "$tmp/ok2.wav"

# Wrong answer: two soft low tones, a fourth apart, falling; a triangle wave
# with its top cut away sounds round rather than harsh.
note "$tmp/er1.wav" 0.10 triangle 233.08 lowpass 1200
note "$tmp/er2.wav" 0.15 triangle 174.61 lowpass 1200
finish carte_er.wav "$tmp/er1.wav" "$tmp/er2.wav"

# Step over: C5 E5 G5 C6, plucked, the last note left to ring.
note "$tmp/ga1.wav" 0.08 pluck 523.25 lowpass 3000
note "$tmp/ga2.wav" 0.08 pluck 659.26 lowpass 3000
note "$tmp/ga3.wav" 0.08 pluck 783.99 lowpass 3000
note "$tmp/ga4.wav" 0.20 pluck 1046.50 lowpass 3000
finish carte_ga.wav "$tmp/ga1.wav" "$tmp/ga2.wav" "$tmp/ga3.wav" "$tmp/ga4.wav"

# Lost: G4 Eb4 C4, a gentle sine falling in minor, the last note longest.
note "$tmp/pe1.wav" 0.11 sine 392.00
note "$tmp/pe2.wav" 0.11 sine 311.13
note "$tmp/pe3.wav" 0.22 sine 261.63
finish carte_pe.wav "$tmp/pe1.wav" "$tmp/pe2.wav" "$tmp/pe3.wav"

# Card opened: a bell stroke, A6 with its octave mixed in, quick decay.
bell "$tmp/hl1.wav" 0.20 1760.00
bell "$tmp/hl2.wav" 0.12 3520.00 vol 0.35 pad 0 0.08
"${SOX[@]}" -m "$tmp/hl1.wav" "$tmp/hl2.wav" "${FORMAT[@]}" "$tmp/hl.wav"
silence "$tmp/hl0.wav" 0.01
finish carte_hl.wav "$tmp/hl0.wav" "$tmp/hl.wav"

for f in carte_ok carte_er carte_ga carte_pe carte_hl; do
  printf '%s  %s s  %s bytes\n' "$f.wav" "$(soxi -D "$sortie/$f.wav")" "$(stat -c %s "$sortie/$f.wav")"
done
