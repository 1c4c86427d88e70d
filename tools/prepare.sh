# Sourced by ./run, ./test, ./bench and .ci/run: from a bare Debian 12 with nothing but git to a built program.
#   prepare               installs the missing packages of cmake/packages.txt
#   build PRESET TARGET   configures when needed and builds what changed
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# A bare machine has no UTF-8 locale set; Qt, Python and the tests expect one.
case "${LC_ALL:-${LC_CTYPE:-${LANG:-}}}" in
    *[Uu][Tt][Ff]8 | *[Uu][Tt][Ff]-8) ;;
    *) export LC_ALL=C.UTF-8 ;;
esac
# Compiler cache and settings need a home that can be written.
if [ -z "${HOME:-}" ] || [ ! -w "$HOME" ]; then
    mkdir -p "$root/build/home" && export HOME="$root/build/home"
fi

if [ -z "${XDG_RUNTIME_DIR:-}" ]; then # Qt asks for one at every start
    mkdir -p -m 700 "$root/build/runtime" && export XDG_RUNTIME_DIR="$root/build/runtime"
fi

# Real drawings to try on, when they lie beside the checkout.
if [ -z "${QVDC_SAMPLES+set}" ] && [ -d "$root/../shared/data" ]; then
    QVDC_SAMPLES=$(cd "$root/../shared/data" && pwd)
    export QVDC_SAMPLES
fi

quietly() { # quietly LOG COMMAND...: shows the output only when the command fails
    local log=$1
    shift
    mkdir -p "$(dirname "$log")"
    "$@" >"$log" 2>&1 </dev/null || { cat "$log" >&2; return 1; }
}

missing_packages() {
    local wanted have
    wanted=$(sed 's/#.*//' "$root/cmake/packages.txt" | xargs)
    # shellcheck disable=SC2086
    have=$(dpkg-query -W -f='${db:Status-Status} ${Package}\n' $wanted 2>/dev/null | sed -n 's/^installed //p' || true)
    comm -23 <(tr ' ' '\n' <<<"$wanted" | LC_ALL=C sort -u) <(LC_ALL=C sort -u <<<"$have")
}

prepare() {
    command -v dpkg-query >/dev/null || return 0 # not Debian: configuring says what is missing
    local missing
    missing=$(missing_packages | xargs)
    [ -n "$missing" ] || return 0
    if [ "$(id -u)" -ne 0 ]; then
        printf 'Some packages are missing. Install them with\n  sudo apt-get install --no-install-recommends %s\n' \
            "$missing" >&2
        exit 2
    fi
    echo "Installing: $missing"
    export DEBIAN_FRONTEND=noninteractive
    quietly "$root/build/apt-update.log" apt-get -q update || echo "The package lists could not be renewed; trying with what is there." >&2
    # shellcheck disable=SC2086
    quietly "$root/build/apt-install.log" apt-get -q -y -o Dpkg::Use-Pty=0 install --no-install-recommends $missing
    rm -f "$root/build/build.ninja" # configure again: more may be found now
    missing=$(missing_packages | xargs)
    [ -z "$missing" ] || { echo "cmake/packages.txt: use the installed package's own name instead of $missing" >&2; exit 2; }
}

configured() { # configured FOLDER: for this very checkout, by the presets as they are
    [ -f "$1/build.ninja" ] && [ ! "$root/CMakePresets.json" -nt "$1/build.ninja" ] &&
        grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$1/CMakeCache.txt"
}

build() { # build PRESET [TARGET]
    local folder=$root/build
    [ "$1" = dev ] || folder=$root/build/$1
    if ! configured "$folder"; then
        echo "Configuring ${folder#"$root"/} ..."
        (cd "$root" && quietly "$folder/configure.log" cmake --preset "$1" --fresh)
    fi
    local options=(--target "${2:-all}" -j "$(nproc)")
    if [ -t 1 ]; then
        cmake --build "$folder" "${options[@]}"
    else
        echo "Building ${2:-all} ..."
        cmake --build "$folder" "${options[@]}" -- --quiet | sed '/^ninja: no work to do\.$/d'
    fi
}
