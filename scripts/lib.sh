# Shared by the scripts beside it; source it after `set -euo pipefail`.
# shellcheck shell=bash

# Exit status of a script whose work this machine cannot do: not a failure of the product.
readonly kCannotRunHere=77

MEROVANE_ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
readonly MEROVANE_ROOT

# Outlives a build folder and a clone: the 32-bit root and the Wine prefixes stand here.
MEROVANE_CACHE=${MEROVANE_CACHE:-${XDG_CACHE_HOME:-${HOME:-/root}/.cache}/merovane}
readonly MEROVANE_CACHE

# shellcheck disable=SC2034  # read by the scripts
readonly I386_ROOT=$MEROVANE_CACHE/i386-root

# say LINE…
say() { printf '%s\n' "$@"; }
warn() { printf '%s\n' "$*" >&2; }
die() {
  warn "${0##*/}: $*"
  exit 1
}
cannot_run_here() {
  warn "${0##*/}: $*"
  exit "$kCannotRunHere"
}

# usage SCRIPT: its opening comment is its manual.
usage() { sed -n '2,/^[^#]/{s/^# \{0,1\}//p}' "$1"; }

have() { command -v "$1" >/dev/null 2>&1; }

can_be_root() { [[ $EUID -eq 0 ]] || { have sudo && sudo -n true 2>/dev/null; }; }
as_root() {
  if [[ $EUID -eq 0 ]]; then "$@"; else sudo -n "$@"; fi
}

missing_packages() {
  local package
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q '^install ok installed$' ||
      printf '%s\n' "$package"
  done
}

need_packages() {
  local missing
  mapfile -t missing < <(missing_packages "$@")
  [[ ${#missing[@]} -gt 0 ]] || return 0
  can_be_root || cannot_run_here "these packages are missing, and only root can install them: ${missing[*]}"
  say "Installing ${missing[*]}"
  local log
  log=$(mktemp)
  # The lists of a fresh machine are empty, those of an old one name files that are gone.
  if ! { as_root apt-get update &&
    as_root env DEBIAN_FRONTEND=noninteractive \
      apt-get install -y --no-install-recommends "${missing[@]}"; } </dev/null >"$log" 2>&1; then
    tail -n 20 "$log" >&2
    rm -f "$log"
    die "the packages could not be installed"
  fi
  rm -f "$log"
}

# build_preset PRESET [TARGET…]
build_preset() {
  local preset=$1
  shift
  cmake -S "$MEROVANE_ROOT" --preset "$preset" &&
    cmake --build "$MEROVANE_ROOT/build/$preset" --parallel "$(nproc)" ${1:+--target "$@"}
}

ctest_preset() { ctest --preset "$1" --no-tests=error --parallel "$(nproc)"; }

# as_windows PATH: as a Windows program knows it under Wine
as_windows() { printf 'Z:%s\n' "${1//\//\\}"; }

now_ms() { date +%s%3N; }

# seconds_since START_MS, with one decimal
seconds_since() {
  local ms=$(($(now_ms) - $1))
  printf '%d.%d' $((ms / 1000)) $((ms % 1000 / 100))
}
