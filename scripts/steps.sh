# Steps with their outcomes and times, for the scripts that run many: lib.sh and what is here.
# shellcheck shell=bash
# shellcheck source=lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

passed=0
failed=0
skipped=0
table=()
log_folder=
total_start=

# start_steps FOLDER: what each step prints is kept there
start_steps() {
  log_folder=$1
  total_start=$(now_ms)
  rm -rf "$log_folder"
  mkdir -p "$log_folder"
}

# report OUTCOME SECONDS NAME
report() {
  local line
  line=$(printf '%-8s %7s s  %s' "$1" "$2" "$3")
  table+=("$line")
  say "$line"
}

# step NAME COMMAND…: run it, count it, and return its status
step() {
  local name=$1 log status=0 start
  shift
  log=$log_folder/${name//[ \/]/-}.log
  start=$(now_ms)
  "$@" </dev/null >"$log" 2>&1 || status=$?
  case $status in
    0)
      passed=$((passed + 1))
      report passed "$(seconds_since "$start")" "$name"
      grep -E '^[0-9]+% tests passed|^\[  PASSED  \]|^Acts of the demo| names and no more$' "$log" | sed 's/^/           /' || true
      ;;
    "$kCannotRunHere")
      skipped=$((skipped + 1))
      report skipped "$(seconds_since "$start")" "$name"
      tail -n 1 "$log" | sed 's/^/           /'
      ;;
    *)
      failed=$((failed + 1))
      report FAILED "$(seconds_since "$start")" "$name"
      say "           exit code $status; the end of $log:"
      tail -n 60 "$log" | sed 's/^/           /'
      ;;
  esac
  return "$status"
}

# skip NAME REASON
skip() {
  skipped=$((skipped + 1))
  report skipped 0.0 "$1"
  say "           $2"
}

# end_steps: the table and the counts; fails when a step did or none passed
end_steps() {
  say "" "Steps and their times:" "${table[@]}" "$(printf '%-8s %7s s' total "$(seconds_since "$total_start")")" ""
  say "$passed passed, $failed failed, $skipped skipped"
  [[ $failed -eq 0 && $passed -gt 0 ]]
}
