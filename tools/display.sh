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

has_window_manager() {
  xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q "window id"
}

try_display() {
  local display=$work/display$1 number
  mkfifo "$display"
  Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3<>"$display" >"$work/xvfb.log" 2>&1 &
  children+=($!)
  read -r -t 30 number <>"$display" || return 1
  export DISPLAY=:$number
  openbox >"$work/openbox.log" 2>&1 &
  children+=($!)
  for _ in $(seq 100); do
    if has_window_manager; then
      return
    fi
    sleep 0.1
  done
  return 1
}

# A display whose number another program takes in the same moment does not come up well;
# then another one is tried.
start_display() {
  local try
  for try in 1 2 3 4 5; do
    if try_display "$try"; then
      return
    fi
  done
  cat "$work/xvfb.log" "$work/openbox.log" >&2
  echo "No virtual display with a window manager can be had" >&2
  return 1
}
