# shellcheck shell=bash
# What ./play, ./test and ./bench share. Source it; it defines functions and runs nothing.

ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# Headings stand out on a terminal and stay plain in a log.
say() {
  if [[ -t 1 ]]; then
    printf '\033[1m==> %s\033[0m\n' "$*"
  else
    printf '==> %s\n' "$*"
  fi
}

complain() {
  printf '%s\n' "$*" >&2
}

# build PRESET [TARGET...]: configures the preset the first time, or when the presets have changed
# (ninja looks after every other reason to configure again), then builds the targets, or all of them.
build() {
  local preset=$1
  shift
  local ninja_file=$ROOT/build/$preset/build.ninja
  if [[ ! -e $ninja_file || $ROOT/CMakePresets.json -nt $ninja_file ]]; then
    say "Configuring build/$preset"
    # Afresh: what an older preset chose, its compiler for one, must not linger.
    (cd "$ROOT" && cmake --preset "$preset" --fresh) || return 1
  fi
  say "Building build/$preset"
  (cd "$ROOT" && cmake --build --preset "$preset" --parallel "$(nproc)" ${@:+--target "$@"})
}
