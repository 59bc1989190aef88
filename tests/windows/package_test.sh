#!/usr/bin/env bash
# package_test.sh BUILD_DIR FOLDER: packs the product, installs it silently beside a host that has plug-ins of its
# own, plays a session with what was installed, uninstalls it and looks for what is left. Needs a Wine session.
set -euo pipefail

project=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/../.." && pwd)
build=$(realpath -e -- "$1")
folder=$(realpath -m -- "$2")
setup=zorva-kestrel-9.2.0.1-setup.exe
key='HKLM\SOFTWARE\Wow6432Node\Zorva Animations'

fail() {
    echo "$1" >&2
    exit 1
}

registry_value() {
    wine reg query "$1" /v "$2" 2>/dev/null | tr -d '\r' | sed -n "s/^ *$2 *REG_SZ *//p"
}

same_files() {
    diff <(cd -- "$1" && find . -type f | sort) <(cd -- "$2" && find . -type f | sort)
}

rm -rf -- "$folder"
mkdir -p -- "$folder/host" "$folder/unzipped"
printf '[Directories]\r\nOther plug-ins=C:\\Others\r\n' >"$folder/host/plugin.ini"
cp -- "$folder/host/plugin.ini" "$folder/plugin.ini.before"
installed=$folder/installed here=Z:${folder//\//\\}

"$project/packaging/make_package.sh" "$build" "$folder"
wine "$folder/$setup" /S "/HOST=$here\\host" "/D=$here\\installed" || fail "setup failed"
[ "$(registry_value "$key" path)" = "$here\\installed" ] || fail "the registry names $(registry_value "$key" path)"
(cd -- "$folder/unzipped" && cmake -E tar xf "$folder/zorva-kestrel-9.2.0.1.zip")
same_files "$folder/unzipped/kestrelstudio" "$installed/kestrelstudio" || fail "installer and ZIP differ"

plugins=$(tr -d '\r' <"$folder/host/plugin.ini" | sed -n 's/^Zorva Kestrel Studio=//p')
[ "$plugins" = "$here\\installed\\kestrelstudio\\plugins\\win\\x64" ] || fail "the host is told $plugins"

# The settings as they are installed, and where the core shall report to.
layout=$installed/kestrelstudio/data/core/layout
sed -i "s#</zmx_config>#<report>Z:$folder/report.txt</report></zmx_config>#" "$layout/zmx_maxconfig.xml"
wine "$build/bin/headless.exe" --plugins "$plugins" --report "$here\\report.txt" --out "$here\\out" ||
    fail "the session failed"
[ "$(wc -l <"$folder/out/positions.csv")" -gt 75 ] || fail "the sample clip was not played"

wine "$folder/$setup" /S "/HOST=$here\\host" "/D=$here\\installed" || fail "setup over an installation failed"
grep -q report.txt "$layout/zmx_maxconfig.xml" || fail "the user's settings were overwritten"

touch -- "$layout/of the user.bvh"
uninstall() {
    wine "$installed/uninstall.exe" /S
    local tries
    for ((tries = 0; tries < 300; tries++)); do # it goes on in a copy of itself
        [ -e "$installed/uninstall.exe" ] || return 0
        sleep 0.2
    done
    fail "uninstalling did not end"
}
uninstall
sleep 1
[ "$(find "$installed" -type f)" = "$layout/of the user.bvh" ] || fail "left or lost: $(find "$installed")"
rm -rf -- "$installed"

# Again, with nothing of the user's in the way.
wine "$folder/$setup" /S "/HOST=$here\\host" "/D=$here\\installed" || fail "setup failed the second time"
uninstall
sleep 1
[ ! -e "$installed" ] || fail "left: $(find "$installed")"
diff "$folder/plugin.ini.before" "$folder/host/plugin.ini" || fail "the host's plugin.ini has changed"
for left in "$key" 'HKLM\SOFTWARE\Microsoft\Windows\CurrentVersion\Uninstall\Zorva Kestrel Studio'; do
    if wine reg query "$left" >/dev/null 2>&1; then fail "left in the registry: $left"; fi
done
