#!/usr/bin/env bash
# check_exports.sh OBJDUMP LIBRARY NAME...: whether a Windows library exports exactly these names, undecorated.
set -euo pipefail

objdump=$1 library=$2
shift 2
found=$("$objdump" -p "$library" | awk '/\[Ordinal\/Name Pointer\] Table/ { table = 1; next }
    NF == 0 { table = 0 }
    table { print $NF }' | sort)
wanted=$(printf '%s\n' "$@" | sort)
[ "$found" = "$wanted" ] || {
    printf '%s exports:\n%s\ninstead of:\n%s\n' "$library" "$found" "$wanted"
    exit 1
}
