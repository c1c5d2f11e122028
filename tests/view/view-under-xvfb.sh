#!/usr/bin/env bash
# The live window under a real display: starts Xvfb, runs "flashsim view" on the sample client directory, clicks
# and types into it with xdotool, and checks that the typed login reached the library (the terminal transcript),
# that the typed password never reached the terminal, and that a screenshot of the window matches the headless
# picture of the same frame. Exits 77 (ctest's skip) when Xvfb, xdotool or ImageMagick's import is missing or
# flashsim was built without SDL2.
# Arguments: FLASHSIM PICCOMPARE OUT
set -euo pipefail
flashsim="$1" piccompare="$2" out="$3"
for tool in Xvfb xdotool import; do
    if ! command -v "$tool" >/dev/null; then
        echo "SKIPPED: $tool is not installed (scripts/bootstrap installs xvfb, xdotool and imagemagick)"
        exit 77
    fi
done
rm -rf "$out"
mkdir -p "$out"
# The sample layout places the main login at 262,124: its account field at 412,244 and its password field at
# 412,288 on the screen, both 260 x 28.
readonly ACCOUNT_X=540 ACCOUNT_Y=258 PASSWORD_X=540 PASSWORD_Y=302
readonly WAIT_STEPS=100 # tenths of a second

pids=()
cleanup() { for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done; }
trap cleanup EXIT
fail() { echo "FAILED: $*"; echo "--- transcript"; cat "$out/transcript.txt" || true; echo "--- stderr"; cat "$out/stderr.txt" || true; exit 1; }
wait_for() { # CONDITION... : polls until it holds
    for _ in $(seq "$WAIT_STEPS"); do "$@" && return 0; sleep 0.1; done
    return 1
}

# A display of its own, whatever number is free.
Xvfb -displayfd 5 -screen 0 1280x1024x24 -nolisten tcp 5>"$out/display" 2>"$out/xvfb.txt" &
pids+=($!)
wait_for test -s "$out/display" || fail "Xvfb did not start"
export DISPLAY=":$(head -1 "$out/display")"
# Xvfb has no GPU: the software renderer draws the window, without a GL driver's threads.
export SDL_RENDER_DRIVER=software SDL_FRAMEBUFFER_ACCELERATION=0
# Under AddressSanitizer: what D-Bus keeps for the process is not ours.
export LSAN_OPTIONS="suppressions=$(cd "$(dirname "$0")" && pwd)/lsan.supp${LSAN_OPTIONS:+:$LSAN_OPTIONS}"

cat >"$out/login.scn" <<'SCN'
set VAR_VERSION 1.0.3
set VAR_SERVER_AREA 2#Dragon|Phoenix|
set VAR_SERVER_NAME 3#Dragon-1|Dragon-2|Dragon-3|
set VAR_MAINPATH 1
SCN
mkfifo "$out/console"
exec 3<>"$out/console"
SDL_AUDIODRIVER=dummy "$flashsim" view --script "$out/login.scn" <"$out/console" >"$out/transcript.txt" \
    2>"$out/stderr.txt" &
pids+=($!)
view_pid=$!
wait_for grep -q "window .* open" "$out/transcript.txt" || {
    if grep -q "built without SDL2" "$out/stderr.txt"; then
        echo "SKIPPED: this flashsim was built without SDL2 (scripts/bootstrap installs libsdl2-dev)"
        exit 77
    fi
    fail "the window did not open"
}
window="$(xdotool search --sync --name "flashsim view")"

xdotool mousemove --window "$window" "$ACCOUNT_X" "$ACCOUNT_Y" click 1
xdotool type --window "$window" --delay 30 "hero"
xdotool mousemove --window "$window" "$PASSWORD_X" "$PASSWORD_Y" click 1
xdotool type --window "$window" --delay 30 "s3cret"
sleep 0.3
echo "show 1013 1013" >&3
wait_for grep -q '^= 1013.1013 ' "$out/transcript.txt" || fail "the console step was not run"
grep -q '^= 1013.1013 visible=1 enabled=1 text="hero"' "$out/transcript.txt" ||
    fail "the typed login did not reach the library"

# One frame held still, written headless and seen on the display.
echo "pause" >&3
echo "shot $out/headless.png" >&3
wait_for test -s "$out/headless.png" || fail "no headless picture"
sleep 0.3
import -window "$window" "$out/window.png"
"$piccompare" "$out/headless.png" "$out/window.png" || fail "the window differs from the headless picture"

echo "quit" >&3
wait_for bash -c "! kill -0 $view_pid 2>/dev/null" || fail "the window did not close"
wait "$view_pid" || fail "view exited with $?"
if grep -q "s3cret" "$out/transcript.txt" "$out/stderr.txt"; then fail "the password reached the terminal"; fi
# A directory without a layout file: the window opens and says so; steps are refused with the reason.
mkdir "$out/empty"
mkfifo "$out/console-empty"
exec 4<>"$out/console-empty"
SDL_AUDIODRIVER=dummy "$flashsim" view "$out/empty" <"$out/console-empty" >"$out/empty-transcript.txt" \
    2>"$out/empty-stderr.txt" &
pids+=($!)
empty_pid=$!
wait_for grep -q "window .* open" "$out/empty-transcript.txt" || fail "no window without a layout file"
grep -q "No layout file (FlashGui.ini) in $out/empty" "$out/empty-stderr.txt" || fail "the missing layout is not named"
echo "set VAR_LOGINUSER hero" >&4
echo "quit" >&4
wait_for bash -c "! kill -0 $empty_pid 2>/dev/null" || fail "the window without a layout did not close"
wait "$empty_pid" || fail "view without a layout exited with $?"
[ "$(grep -c "No layout file" "$out/empty-stderr.txt")" -eq 2 ] || fail "the step was not refused"
echo "PASSED"
