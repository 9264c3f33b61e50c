# shellcheck shell=bash
# A desktop of one's own for end-to-end tests: an X server, a window manager, a sound server, and a
# hand on the mouse. Sourced by the tests; they set `program` and `folder` before, and `program` is
# started by start_game.

fail() {
  printf '%s: %s\n' "${0##*/}" "$*" >&2
  [[ ! -s $folder/log ]] || cat "$folder/log" >&2
  exit 1
}

# await WHAT COMMAND...: polls until the command succeeds; half a minute is forever.
await() {
  local what=$1
  shift
  for _ in {1..300}; do
    if "$@" >/dev/null 2>&1; then
      return
    fi
    sleep 0.1
  done
  fail "$what did not come about"
}

children=()
stop() {
  kill "${children[@]}" 2>/dev/null || true
  wait 2>/dev/null || true
}
trap stop EXIT

start_desktop() {
  rm -rf "$folder"
  mkdir -p "$folder/config" "$folder/run"
  chmod 700 "$folder/run"
  mkfifo "$folder/display"
  Xvfb -displayfd 7 -screen 0 1440x900x24 -nolisten tcp 7>"$folder/display" 2>"$folder/xvfb.log" &
  children+=($!)
  local number
  read -r number <"$folder/display"
  export DISPLAY=:$number
  # A window that is shown while the window manager takes over the screen may never appear: wait until
  # it says that it is done.
  openbox --startup "touch '$folder/managed'" >"$folder/openbox.log" 2>&1 &
  children+=($!)
  await 'a window manager' test -e "$folder/managed"
  export XDG_CONFIG_HOME=$folder/config XDG_RUNTIME_DIR=$folder/run QT_QPA_PLATFORM=xcb
  export HOME=$folder # the sound server keeps its cookie there
  unset WAYLAND_DISPLAY
}

# Sets `hears` to yes or no: whether what the game plays can be recorded.
start_sound() {
  hears=no
  export ALSOFT_DRIVERS=null # the device that is always there: none
  if ! command -v pulseaudio >/dev/null || ! command -v parec >/dev/null; then
    printf 'pulseaudio or parec is missing (tools/packages test installs them): nothing is listened to\n'
    return
  fi
  pulseaudio -n --daemonize=no --exit-idle-time=-1 --use-pid-file=no --log-target="file:$folder/pulse.log" \
    -L 'module-null-sink sink_name=ear rate=48000 channels=2' \
    -L "module-native-protocol-unix auth-anonymous=1 socket=$folder/pulse" &
  children+=($!)
  export PULSE_SERVER=unix:$folder/pulse ALSOFT_DRIVERS=pulse
  await 'a sound server' pactl info
  hears=yes
}

# record NAME: what is heard from now on goes to NAME.raw, until stop_recording.
record() {
  [[ $hears == no ]] && return
  parec --device=ear.monitor --rate=48000 --channels=1 --format=s16le --latency-msec=50 >"$folder/$1.raw" &
  recorder=$!
  children+=("$recorder")
  await 'a recording' test -s "$folder/$1.raw"
}

stop_recording() {
  [[ $hears == no ]] && return
  kill "$recorder"
  wait "$recorder" 2>/dev/null || true
}

# A session bus with what screen readers read through.
start_bus() {
  mkfifo "$folder/bus"
  dbus-daemon --session --nofork --nopidfile --print-address=7 7>"$folder/bus" 2>"$folder/bus.log" &
  children+=($!)
  read -r DBUS_SESSION_BUS_ADDRESS <"$folder/bus"
  export DBUS_SESSION_BUS_ADDRESS
  # What a screen reader does when it starts.
  dbus-send --session --print-reply --dest=org.a11y.Bus /org/a11y/bus org.freedesktop.DBus.Properties.Set \
    string:org.a11y.Status string:IsEnabled variant:boolean:true >/dev/null
}

# start_game ARGUMENTS...: what the program is given.
start_game() {
  "$program" "$@" >>"$folder/log" 2>&1 &
  game=$!
  children+=("$game")
  await 'the window' xdotool search --onlyvisible --name '^Veyrand$'
  window=$(xdotool search --onlyvisible --name '^Veyrand$' | head -n 1)
  xdotool windowfocus --sync "$window"
}

quit_game() {
  # The window may go before the key is up again, which xdotool takes amiss.
  xdotool key ctrl+q 2>/dev/null || true
  await 'the end of the game' bash -c "! kill -0 $game"
}

# geometry: X, Y, WIDTH and HEIGHT of the window's inside, one a line.
geometry() {
  xdotool getwindowgeometry --shell "$window" | grep -E '^(X|Y|WIDTH|HEIGHT)='
}

has_geometry() {
  [[ $(geometry) == "$1" ]]
}

# at X Y: puts the pointer on a place given in thousandths of the board's height, from its lower left.
# The board is as wide as the window and ends at its lower edge, with the menu bar above it; or fills
# the screen.
at() {
  local X Y WIDTH HEIGHT
  eval "$(geometry)"
  local board=$((WIDTH * 10 / 16))
  xdotool mousemove --window "$window" $(($1 * board / 1000)) $((HEIGHT - $2 * board / 1000))
}

picture() {
  if command -v import >/dev/null; then
    import -window "$window" "$folder/$1.png"
  fi
}

preferences_say() {
  grep -q "\"$1\": $2" "$XDG_CONFIG_HOME/veyrand/preferences.json" 2>/dev/null
}

# press PLACES UNTIL...: clicks at the places ("X,Y X,Y") in turn, again and again, until the command
# succeeds. A click may meet a page, and a page wants to be read for a second before it goes.
press() {
  local places=$1 place
  shift
  for _ in {1..30}; do
    for place in $places; do
      at "${place%,*}" "${place#*,}"
      xdotool click 1
      for _ in {1..12}; do
        if "$@"; then
          return
        fi
        kill -0 "$game" 2>/dev/null || fail 'the game ended'
        sleep 0.1
      done
    done
  done
  fail "clicking at $places did not lead on"
}

no_complaints() {
  if grep -iE 'warning|cannot|error' "$folder/log"; then
    fail 'the game complained'
  fi
}
