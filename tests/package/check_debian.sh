#!/usr/bin/env bash
# The Debian packages: lintian has nothing to say about any, and programs compile against them in a bare Debian.
#     check_debian.sh SOURCES BUILD SCRATCH
set -Eeuo pipefail
sources=$1 build=$2 scratch=$3 root=$3/root
for tool in debootstrap lintian dpkg-shlibdeps; do
    command -v $tool >/dev/null || { echo "this test needs $tool: apt-get install debootstrap lintian dpkg-dev" >&2; exit 1; }
done
((EUID == 0)) || { echo "this test makes a root of its own with debootstrap: run it as root" >&2; exit 1; }
umount "$root/proc" "$root/sys" 2>/dev/null || true
rm -rf --one-file-system "$scratch"
mkdir -p "$scratch"
trap 'tail -n 20 "$scratch/log" 2>/dev/null' ERR

(cd "$build" && cpack -G DEB -B "$scratch") >"$scratch/log" 2>&1
packages=("$scratch"/*.deb)
((${#packages[@]} == 5))
for package in "${packages[@]}"; do
    tags=$(lintian --allow-root "$package" | grep -v '^N:' || true)
    [ -z "$tags" ] || { echo "$tags" >&2; exit 1; }
done

mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' | head -n 1)
debootstrap --variant=minbase bookworm "$root" "$mirror" >>"$scratch/log" 2>&1
cp "${packages[@]}" "$sources/tests/package/vecabi.c" "$sources/tests/package/consumer.c" "$sources/tests/package/wide.cpp" \
    "$sources/tests/package/CMakeLists.txt" "$sources/llvm/tests/loops.c" "$root/root"
cp -r "$sources/tests/package/jit" "$root/root"
# As a user does: the packages first, which bring what they need, then compilers.
chroot "$root" env DEBIAN_FRONTEND=noninteractive bash -ec '
    cd /root
    mount -t proc proc /proc 2>/dev/null || true
    mount -t sysfs sysfs /sys 2>/dev/null || true # PoCL sizes its device by it
    apt-get -qq update
    apt-get -qq install --yes --no-install-recommends ./*.deb clinfo ocl-icd-libopencl1
    orvane-call expf1 1 | grep -q 2.7182817
    clinfo | grep -q "Platform Version.*Orvane"
    apt-get -qq install --yes --no-install-recommends g++ pkg-config cmake make clang-16
    gcc -O3 -mavx2 -mfma vecabi.c -lorvane_vecabi -lm -o gcc-made && ./gcc-made
    clang-16 -O2 -fno-math-errno -mavx2 -mfma -Rpass=orvane -fpass-plugin=$(pkg-config --variable=clang_plugin orvane-vecabi) \
        vecabi.c -lorvane_vecabi -lm -o clang-made 2>remarks && ./clang-made
    grep -q _ZGVdN8v_lgammaf remarks
    cmake -S . -B build >/dev/null && cmake --build build >/dev/null && build/use_vecabi && build/use_orvane_l9
    clang-16 -O3 -mavx2 -mfma -S -fpass-plugin=$(echo /usr/lib/*/orvane/orvane-llvm-16.so) loops.c -o - | grep -q __orvane_l9_expf8
    apt-get -qq install --yes --no-install-recommends llvm-16-dev
    cmake -S jit -B jit/build >/dev/null && cmake --build jit/build >/dev/null && jit/build/jit
' >>"$scratch/log" 2>&1
umount "$root/proc" "$root/sys" 2>/dev/null || true
rm -rf --one-file-system "$root"
echo "installed and used in a bare root"
