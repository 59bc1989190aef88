#!/usr/bin/env bash
# Lays out an installation of the product from a build, the way the plug-in and the core expect to find it:
#
#   DEST/kestrelstudio/plugins/win/x64/zorva_kestrel.gup     the plug-in
#   DEST/kestrelstudio/data/core/win/x64/core.dll            the core
#   DEST/kestrelstudio/data/core/layout/zmx_maxconfig.xml    the core's settings: the clip, its report and log
#   DEST/installation.reg                                    the registry entries, as a registry export
#   DEST/logs/                                               where plug-in and core mirror their logs
#   DEST/report.txt                                          written by the core after each start
#
# What DEST held before is removed, unless it is no such installation: then nothing is done. DRIVE, such as Z:,
# is what the product's files call the root folder, for a build that runs under Wine; empty for others. Each ELEMENT
# is XML that the settings get too, behind the defaults, so that it counts.
set -euo pipefail

usage() {
    echo "usage: ${0##*/} BUILD_DIR DEST CLIP [DRIVE [ELEMENT...]]" >&2
    exit 1
}

# Text as the content of an XML element; the core's XML knows numeric references only.
xml_text() {
    printf '%s' "$1" | sed -e 's/&/\&#38;/g' -e 's/</\&#60;/g'
}

# Text between the quotes of a registry export.
registry_text() {
    printf '%s' "$1" | sed -e 's/[\\"]/\\&/g'
}

[ $# -ge 3 ] || usage
for argument in "$1" "$2" "$3"; do [ -n "$argument" ] || usage; done
build=$(realpath -m -- "$1")
dest=$(realpath -m -- "$2")
clip=$3
[[ $clip = /* ]] || clip=$PWD/$clip # links stay: a take is called as its clip is
drive=${4:-}
shift $(($# < 4 ? $# : 4))
elements=$(printf '    %s\n' "$@")

if [ -e "$dest" ] && [ ! -d "$dest/kestrelstudio" ] && [ -n "$(ls -A -- "$dest")" ]; then
    echo "${0##*/}: $dest holds something other than an installation" >&2
    exit 1
fi
# The folder that tells an installation goes last: a removal that was broken off can be repeated.
[ ! -d "$dest" ] || find "$dest" -mindepth 1 -maxdepth 1 ! -name kestrelstudio -exec rm -rf -- {} +
rm -rf -- "$dest"

core=$dest/kestrelstudio/data/core
plugins=$dest/kestrelstudio/plugins/win/x64
mkdir -p -- "$core/win/x64" "$core/layout" "$plugins" "$dest/logs"
cp -- "$build/bin/core.dll" "$core/win/x64/core.dll"
cp -- "$build/bin/zorva_kestrel.gup" "$plugins/zorva_kestrel.gup"

cat >"$core/layout/zmx_maxconfig.xml" <<XML
<?xml version="1.0"?>
<zmx_config>
    <clip>$(xml_text "$drive$clip")</clip>
    <metresPerUnit>0.01</metresPerUnit>
$elements
    <report>$(xml_text "$drive$dest/report.txt")</report>
    <log>$(xml_text "$drive$dest/logs/core.log")</log>
</zmx_config>
XML

cat >"$dest/installation.reg" <<REG
REGEDIT4

[HKEY_LOCAL_MACHINE\\SOFTWARE\\Wow6432Node\\Zorva Animations]
"path"="$(registry_text "$drive$dest")"
"log"="$(registry_text "$drive$dest/logs/adaptor.log")"
REG
