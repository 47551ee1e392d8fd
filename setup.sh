# Sourced by ./run and ./test: from a Debian 12 with git and apt alone to a finished build/. What is there already is
# neither installed, configured nor built again.
set -euo pipefail
cd -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")"

# The library needs cmake, ninja-build and g++; the rest serves tools, tests and benchmarks.
packages=(cmake ninja-build g++ pkg-config
    libmpfr-dev libgtest-dev libbenchmark-dev libsleef-dev libcli11-dev nlohmann-json3-dev libzydis-dev
    libjs-chart.js libcpp-httplib-dev chromium chromium-driver
    clang-15 llvm-15-dev clang-16 llvm-16-dev clang-19 llvm-19-dev gfortran clang-format
    pocl-opencl-icd ocl-icd-opencl-dev opencl-clhpp-headers libxtensor-dev libpng-dev clinfo clpeak)

install_missing() {
    command -v dpkg-query >/dev/null || return 0 # not a Debian: CMake says what it misses
    local installed missing=() p
    installed=" $(dpkg-query -W -f '${Package}=${db:Status-Status} ' "${packages[@]}" 2>/dev/null || true)"
    for p in "${packages[@]}"; do
        [[ $installed == *" $p=installed "* ]] || missing+=("$p")
    done
    ((${#missing[@]})) || return 0

    echo "Installing ${missing[*]}"
    local apt=(env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300 -o Acquire::Retries=3)
    if ((EUID)); then
        command -v sudo >/dev/null || {
            echo "error: ${missing[*]} missing: install with apt-get as root, or install sudo" >&2
            return 1
        }
        apt=(sudo "${apt[@]}")
    fi
    "${apt[@]}" update </dev/null
    "${apt[@]}" install --yes --no-install-recommends "${missing[@]}" </dev/null >/dev/null
}

check_processor() {
    local flag
    for flag in avx2 fma; do
        grep -qw "$flag" /proc/cpuinfo || {
            echo "error: this processor has no $flag, which every kernel needs" >&2
            return 1
        }
    done
}

configure() {
    # A build/ whose last configuring failed (with a compiler that was refused, say) or that came here with a copied tree
    # is configured anew; its objects stay.
    if [[ -e build/CMakeCache.txt ]] && { [[ ! -e build/configured ]] ||
        ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" build/CMakeCache.txt ||
        ! grep -qxF "CMAKE_CACHEFILE_DIR:INTERNAL=$PWD/build" build/CMakeCache.txt; }; then
        rm -rf build/CMakeCache.txt build/configured build/CMakeFiles/[0-9]*
    fi
    # One that someone configured in another way keeps its generator and build type, and gets what is missing.
    if [[ ! -e build/CMakeCache.txt ]]; then cmake --preset tests
    elif ! grep -q '^ORVANE_TESTS:BOOL=ON$' build/CMakeCache.txt || ! grep -q '^ORVANE_BENCH:BOOL=ON$' build/CMakeCache.txt ||
        ! grep -q '^ORVANE_LLVM:BOOL=ON$' build/CMakeCache.txt ||
        ! grep -q '^ORVANE_OPENCL:BOOL=ON$' build/CMakeCache.txt; then
        cmake -S . -B build -DORVANE_TESTS=ON -DORVANE_BENCH=ON -DORVANE_LLVM=ON -DORVANE_OPENCL=ON
    fi
}

install_missing
check_processor
configure
cmake --build build --parallel "$(nproc)"
