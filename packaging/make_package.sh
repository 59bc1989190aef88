#!/usr/bin/env bash
# make_package.sh BUILD_DIR DEST: packs the libraries of a Windows build for users.
#
#   DEST/zorva-kestrel-9.2.0.1.zip         the product's folders, to be unpacked by hand
#   DEST/zorva-kestrel-9.2.0.1-setup.exe   the installer
#
# Both hold the same files.
set -euo pipefail

[ $# -eq 2 ] || {
    echo "usage: ${0##*/} BUILD_DIR DEST" >&2
    exit 1
}
packaging=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")" && pwd)
build=$(realpath -e -- "$1")
mkdir -p -- "$2"
dest=$(realpath -e -- "$2")
version=9.2.0.1
name=zorva-kestrel-$version
work=$(mktemp -d -- "$dest/.package.XXXXXX")
trap 'rm -rf -- "$work"' EXIT

collect() {
    local product=$work/files/kestrelstudio
    install -D -m 644 -t "$product/plugins/win/x64" -- "$build/bin/zorva_kestrel.gup"
    install -D -m 644 -t "$product/data/core/win/x64" -- "$build/bin/core.dll"
    install -D -m 644 -t "$product/data/core/layout" -- "$packaging"/sample/{zmx_maxconfig.xml,wave.bvh}
    install -D -m 644 -t "$product/doc" -- "$packaging"/../docs/{troubleshooting.md,core-authors.md,message-box.png}
}

# Every file and folder by name: uninstalling must not take along what a user has put beside them.
list_for_installer() {
    local folder file
    cd -- "$work/files"
    find . -type d -printf '%P\n' | sort | while read -r folder; do
        printf 'SetOutPath "$INSTDIR\\%s"\n' "${folder//\//\\}"
        find "./$folder" -maxdepth 1 -type f | sort | while read -r file; do
            case $file in
                */zmx_maxconfig.xml) printf 'SetOverwrite off\nFile "%s"\nSetOverwrite on\n' "$file" ;; # the user's by now
                *) printf 'File "%s"\n' "$file" ;;
            esac
        done
    done >"$work/install.nsh"
    {
        find . -type f -printf 'Delete "$INSTDIR\\%P"\n' | sort
        find . -mindepth 1 -type d -printf 'RMDir "$INSTDIR\\%P"\n' | sort -r
    } | tr / '\\' >"$work/uninstall.nsh"
}

collect
(
    cd -- "$work/files"
    rm -f -- "$dest/$name.zip"
    find . -type f -printf '%P\n' | sort >"$work/names"
    cmake -E tar cf "$dest/$name.zip" --format=zip --files-from="$work/names"
)
(list_for_installer)
cd -- "$work/files"
makensis -V2 -NOCD "-DVERSION=$version" "-DLISTS=$work" "-DOUTPUT=$dest/$name-setup.exe" "$packaging/installer.nsi"
