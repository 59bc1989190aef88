# Sourced by ./run and ./test.
#
# install_packages PACKAGE...: installs those that are missing through apt-get, with sudo where the user is not
# root, and says so. Status 1 when that fails.
install_packages() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2> /dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    local as_root=()
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    echo "installing: ${missing[*]}"
    local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -o Acquire::Retries=3)
    "${apt[@]}" update > /dev/null && "${apt[@]}" install -y --no-install-recommends "${missing[@]}" > /dev/null || {
        echo "could not install: ${missing[*]}" >&2
        return 1
    }
}
