#!/usr/bin/env bash
# build_core.sh BUILD_DIR FOLDER CMAKE_ARGUMENT...: installs BUILD_DIR's headers for core authors below FOLDER and
# builds the minimal core there from nothing else.
set -euo pipefail

build=$1 folder=$2
shift 2
source=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")" && pwd)/minimal_core
rm -rf -- "$folder"
mkdir -p -- "$folder"
cp -r -- "$source" "$folder/source" # outside this project, so that nothing of it can be included by chance
cmake --install "$build" --component core --prefix "$folder/prefix" >"$folder/install.log"
cmake -S "$folder/source" -B "$folder/minimal_core" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_PREFIX_PATH="$folder/prefix" -DCMAKE_FIND_ROOT_PATH="$folder/prefix" "$@"
cmake --build "$folder/minimal_core"
