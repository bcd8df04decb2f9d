# Shared by `run` and `test`: installs missing packages and builds. Sourced with $here set to the checkout.

# Lets the compiler cache work with precompiled headers.
export CCACHE_SLOPPINESS=pch_defines,time_macros

say() { printf '%s\n' "$*"; }

fail() {
    printf '\n%s\n' "$*" >&2
    exit 1
}

packages() { sed -e 's/#.*//' -e 's/[[:space:]].*//' -e '/^$/d' "$here/packages.txt"; }

missing_packages() {
    local name
    for name in $(packages) "$@"; do
        dpkg-query -W -f='${Status}' "$name" 2>/dev/null | grep -q 'ok installed' || printf '%s ' "$name"
    done
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null 2>&1; then
        sudo "$@"
    else
        fail "Packages must be installed by root, and sudo is not here. As root, run: apt-get install $missing"
    fi
}

# Installs what packages.txt names, and further packages given as arguments.
install_packages() {
    command -v dpkg-query >/dev/null 2>&1 || fail "This script installs Debian packages; install those of packages.txt by hand and build with CMake."
    missing=$(missing_packages "$@")
    [ -z "$missing" ] && return
    say "Installing packages: $missing"
    as_root apt-get update -q || fail "The package lists could not be fetched. Is the network up? Then run this again."
    # shellcheck disable=SC2086
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends $missing ||
        fail "Some packages could not be installed; the lines above say which. Mend that and run this again."
}

# build PRESET [TARGET ...]: configures and builds.
build() {
    local preset=$1
    shift
    local log="$here/build/$preset-configure.log"
    mkdir -p "$here/build"
    say "Building ($preset)"
    (cd "$here" && cmake --preset "$preset") >"$log" 2>&1 || {
        tail -n 20 "$log" >&2
        fail "The build could not be configured; the whole output is in $log"
    }
    (cd "$here" && cmake --build --preset "$preset" ${1:+--target "$@"}) ||
        fail "The build failed; the first error above says where. If it stopped for lack of memory, run it again."
}
