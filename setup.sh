# Set-up that ./run and ./test share: installs what is missing (Debian 12), configures once and builds. To be sourced.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

packages=(cmake ninja-build g++ libmpfr-dev libgtest-dev libbenchmark-dev libsleef-dev libcli11-dev nlohmann-json3-dev
          libzydis-dev pkg-config)

install_missing() {
    local missing=() p
    for p in "${packages[@]}"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$p" 2>/dev/null)" = installed ] || missing+=("$p")
    done
    [ ${#missing[@]} -eq 0 ] && return
    echo "installing ${missing[*]}"
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { echo "these packages are missing and there is no sudo: ${missing[*]}" >&2; exit 1; }
        as_root=(sudo)
    fi
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q update >/dev/null
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q install -y --no-install-recommends "${missing[@]}" >/dev/null
}

check_processor() {
    local flag
    for flag in avx2 fma; do
        grep -qw "$flag" /proc/cpuinfo || { echo "this processor has no $flag, which every kernel needs" >&2; exit 1; }
    done
}

# Ninja finds by itself what is up to date; configuring is its business too once the folder stands.
build() {
    [ -f build/build.ninja ] || cmake -B build -G Ninja -DCMAKE_BUILD_TYPE=Release >/dev/null
    cmake --build build --parallel "$(nproc)" -- --quiet
}

install_missing
check_processor
build
