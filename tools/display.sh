# SPDX-FileCopyrightText: 2026 The Quillmark authors
# SPDX-License-Identifier: GPL-3.0-or-later

# start_display: gives the script a virtual display with a window manager, in DISPLAY.
# Both end with the script, and so do the processes that it adds to `children`; `work`
# is a folder that goes with it.

work=$(mktemp -d)
children=()

finish() {
  kill "${children[@]}" 2>/dev/null || true
  wait 2>/dev/null || true
  rm -rf "$work"
}
trap finish EXIT

start_display() {
  local number
  mkfifo "$work/display"
  Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3<>"$work/display" >"$work/xvfb.log" 2>&1 &
  children+=($!)
  read -r -t 30 number <"$work/display"
  export DISPLAY=:$number
  openbox >"$work/openbox.log" 2>&1 &
  children+=($!)
  for _ in $(seq 300); do
    if xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q "window id"; then
      return
    fi
    sleep 0.1
  done
  echo "The window manager does not come up" >&2
  return 1
}
