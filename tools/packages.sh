# SPDX-FileCopyrightText: 2026 The Quillmark authors
# SPDX-License-Identifier: GPL-3.0-or-later

# ensure_packages GROUP...: installs what is missing of these groups of packages.txt.

packages_of() {
  awk -v wanted="[$1]" '/^\[/ { inside = ($0 == wanted); next } inside && NF && !/^#/' "$root/packages.txt"
}

as_root() {
  if [ "$(id -u)" -eq 0 ]; then
    "$@"
  else
    sudo "$@"
  fi
}

ensure_packages() {
  local missing=() group package
  for group in "$@"; do
    for package in $(packages_of "$group"); do
      if [ "$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null)" != "install ok installed" ]; then
        missing+=("$package")
      fi
    done
  done
  if [ "${#missing[@]}" -eq 0 ]; then
    return
  fi
  echo "Installing: ${missing[*]}"
  as_root apt-get -q update
  as_root env DEBIAN_FRONTEND=noninteractive apt-get -q install -y --no-install-recommends "${missing[@]}"
}
