# Shared by ./run and ./test: packages, configuration and build. To be sourced by bash, not run.
# Everything it prints begins with "==>", and every failure ends in a sentence that says what to do.

kelp_root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"

kelp_say() { printf '==> %s\n' "$*"; }

kelp_fail() {
    printf '==> %s\n' "$*" >&2
    exit 1
}

# kelp_packages SECTION …: the package names of these sections, a line each; optional ones carry a "?".
kelp_packages() {
    local section
    for section in "$@"; do
        awk -v want="[$section]" '
            /^\[/ { on = ($0 == want); next }
            on && NF && !/^#/ { print $1 ($2 == "?" ? "?" : "") }' "$kelp_root/tools/packages.txt"
    done | sort -u
}

# kelp_install SECTION …: installs what is missing, by apt, as root or with sudo.
kelp_install() {
    command -v dpkg-query >/dev/null || {
        kelp_say "This is no Debian system: packages are not installed for you (tools/packages.txt lists what is needed)."
        return 0
    }
    local wanted missing=() optional=() name installed
    installed=" $(dpkg-query -W -f '${db:Status-Abbrev}${Package}\n' 2>/dev/null | awk '/^ii/ { print $2 }' | tr '\n' ' ') "
    wanted="$(kelp_packages "$@")"
    for name in $wanted; do
        case "$installed" in
            *" ${name%\?} "*) ;;
            *) case "$name" in *\?) optional+=("${name%\?}") ;; *) missing+=("$name") ;; esac ;;
        esac
    done
    [ $((${#missing[@]} + ${#optional[@]})) -eq 0 ] && return 0
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        if command -v sudo >/dev/null; then
            as_root=(sudo)
        elif [ ${#missing[@]} -eq 0 ]; then
            return 0
        else
            kelp_fail "Packages are missing and neither root nor sudo is at hand. Please run as root: apt-get install ${missing[*]}"
        fi
    fi
    local log
    log="$(mktemp "${TMPDIR:-/tmp}/kelp-install-XXXXXX.log")"
    local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o DPkg::Lock::Timeout=300)
    # Lists that are already there are good enough for what only sweetens the build.
    if [ ${#missing[@]} -gt 0 ]; then
        kelp_say "Installing ${#missing[@]} missing Debian package(s): ${missing[*]}"
        "${apt[@]}" update >"$log" 2>&1 || kelp_say "apt-get update failed; trying with the package lists that are here (log: $log)."
        "${apt[@]}" install --no-install-recommends "${missing[@]}" >>"$log" 2>&1 ||
            kelp_fail "Installing packages failed; the end of $log says why. Is the network up and is this Debian 12 or newer?"
    fi
    for name in "${optional[@]}"; do
        # One at a time: a package that this release of Debian does not have must not take the others along.
        if "${apt[@]}" install --no-install-recommends "$name" >>"$log" 2>&1; then
            kelp_say "Installed $name."
        else
            kelp_say "$name cannot be had here; going on without it."
        fi
    done
    rm -f "$log"
}

# kelp_build PRESET [target …]: configures where needed and builds; quiet unless something is to be done.
kelp_build() {
    local preset="$1" folder jobs
    shift
    case "$preset" in release) folder="$kelp_root/build" ;; *) folder="$kelp_root/build-$preset" ;; esac
    cd "$kelp_root" || exit 1
    # A checkout that was moved or copied brings a cache of another place along; it would only confuse CMake.
    if [ -f "$folder/CMakeCache.txt" ] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$kelp_root" "$folder/CMakeCache.txt"; then
        kelp_say "The build folder belongs to another place of this tree; making it anew."
        rm -rf "$folder"
    fi
    if [ ! -f "$folder/build.ninja" ]; then
        kelp_say "Configuring ($preset) …"
        cmake --preset "$preset" >"$kelp_root/.configure.log" 2>&1 || {
            tail -n 30 "$kelp_root/.configure.log" >&2
            kelp_fail "Configuring failed; the lines above say what is missing (whole output: .configure.log)."
        }
        rm -f "$kelp_root/.configure.log"
    fi
    jobs="$(nproc 2>/dev/null || echo 2)"
    if ! cmake --build "$folder" --target "${@:-all}" -- -n 2>/dev/null | grep -q 'no work to do'; then
        kelp_say "Building ($preset, $jobs jobs); the first time takes some minutes …"
    fi
    cmake --build "$folder" --parallel "$jobs" --target "${@:-all}" ||
        kelp_fail "The build failed; the first error above is the one to look at."
}
