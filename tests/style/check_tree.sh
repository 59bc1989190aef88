#!/usr/bin/env bash
# Keeps the direction of the house: who may include whom, and no switches between the builds in the product's
# folders. Prints each offence; status 1 when there is one.
set -u
cd "$(dirname "$0")/../.."

offences=0

# forbid PATTERN WHY FOLDER...
forbid() {
    local pattern=$1 why=$2
    shift 2
    local hits
    hits=$(grep -rnE --include='*.h' --include='*.cpp' --include='*.rc' "$pattern" "$@")
    if [ -n "$hits" ]; then
        printf '%s\n%s\n' "$why:" "$hits"
        offences=1
    fi
}

include='^ *# *include *[<"]'
host_headers='(max|gup|hold|inode|maxapi|control|object|ref|windows)\.h[>"]'
product='(adaptor|core|util|samples)/'

forbid "$include(adaptor|core|maxhost|samples|apps)/" 'util includes nothing of ours' util
forbid "$include(adaptor|maxhost|samples|apps)/|$include$host_headers" 'core includes only util' core
forbid "${include}util/(xml/)?internal/" 'private to util, and not installed' core samples adaptor
forbid "$include(adaptor|maxhost|apps)/|$include$host_headers" 'a core knows no host' samples
forbid "$include(maxhost|samples|apps)/" 'the adaptor includes core, util and the SDK' adaptor
forbid "$include$product" 'the host is ignorant of the plug-in' maxhost
forbid "$include$product" 'the command line includes only the host' apps
forbid '^ *# *(if|ifdef|ifndef|elif).*(_WIN32|__linux__|__MINGW|_MSC_VER|ZK_)' \
    'the product does not tell the builds apart' adaptor core util resources
exit $offences
